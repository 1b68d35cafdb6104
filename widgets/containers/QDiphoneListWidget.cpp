#include "QDiphoneListWidget.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>

namespace {

const char kMenuStyleSheet[] = "QMenu { color:black; background-color:#EEE;}"
                               "                               "
                               "QMenu::item:selected { color:white; background-color:#717171;}";

} // namespace

QDiphoneListWidget::QDiphoneListWidget(QWidget *parent)
    : QListWidget(parent)
{
    setContextMenuPolicy(Qt::DefaultContextMenu);
}

QDiphoneListWidget::~QDiphoneListWidget() = default;

void QDiphoneListWidget::OnDeleteActionTrigger()
{
    emit DeleteCurrentRow(currentRow());
}

void QDiphoneListWidget::contextMenuEvent(QContextMenuEvent *event)
{
    if (count() == 0)
        return;
    // The menu stays a child of the list; a new one is made for every request.
    auto *pkMenu = new QMenu(this);
    auto *pkDeleteAction = new QAction(tr("Delete"), pkMenu);
    pkMenu->addAction(pkDeleteAction);
    connect(pkDeleteAction, SIGNAL(triggered()), this, SLOT(OnDeleteActionTrigger()));
    pkMenu->setStyleSheet(QLatin1String(kMenuStyleSheet));
    pkMenu->exec(event->globalPos());
}
