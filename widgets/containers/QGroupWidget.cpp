#include "QGroupWidget.h"

#include "FlowLayout.h"
#include "QNumericalWidgetBase.h"
#include "QSbsImageWidget.h"

#include <QApplication>
#include <QPainter>
#include <QPushButton>
#include <QStyleOption>
#include <QVBoxLayout>

static const char kExpandedMarker[] = " -  ";
static const char kCollapsedMarker[] = " +  ";

// Object names are the caption with its blanks removed.
static QString objectNameFor(QString strText)
{
    return strText.remove(QLatin1Char(' '));
}

QGroupWidget::QGroupWidget(QWidget *parent, QString strText, bool bChecked)
    : QWidget(parent)
{
    auto *mainLayout = new QVBoxLayout(this);
    m_strText = strText;
    const QString strObjectName = objectNameFor(m_strText);

    m_pTitleButton = new QPushButton(QLatin1String(kExpandedMarker) + m_strText);
    m_pTitleButton->setCheckable(true);
    m_pTitleButton->setFlat(true);
    m_pTitleButton->setStyleSheet(QStringLiteral("text-align: left"));
    m_pTitleButton->setObjectName(strObjectName);
    mainLayout->addWidget(m_pTitleButton);
    mainLayout->setContentsMargins(0, 0, 0, 0);
    mainLayout->setSpacing(5);
    setObjectName(strObjectName);

    m_pNumericalContainer = new QWidget(this);
    m_pNumericalContainer->setObjectName(strObjectName);
    m_pNumericalLayout = new QVBoxLayout(m_pNumericalContainer);
    m_pNumericalLayout->setContentsMargins(0, 0, 0, 0);
    m_pNumericalLayout->setSpacing(5);
    mainLayout->addWidget(m_pNumericalContainer);

    connect(m_pTitleButton, &QPushButton::clicked, this, &QGroupWidget::OnTitleButtonClicked);
    // Bring container, marker and check state to the initial state through the toggle path.
    emit m_pTitleButton->clicked(bChecked);
    m_pTitleButton->setChecked(bChecked);
}

QGroupWidget::~QGroupWidget() = default;

QString QGroupWidget::text() const
{
    return m_strText;
}

void QGroupWidget::setText(const QString &strText)
{
    m_strText = strText;
    const QString strObjectName = objectNameFor(m_strText);
    m_pTitleButton->setText(TitleText(IsOpen()));
    m_pTitleButton->setObjectName(strObjectName);
    setObjectName(strObjectName);
    m_pNumericalContainer->setObjectName(strObjectName);
}

QGroupWidget *QGroupWidget::ParentGroup() const
{
    return m_pParentGroup;
}

void QGroupWidget::SetParent(QGroupWidget *pGroup)
{
    m_pParentGroup = pGroup;
}

QWidget *QGroupWidget::GetNumericalContainer() const
{
    return m_pNumericalContainer;
}

QVBoxLayout *QGroupWidget::GetNumericalLayout() const
{
    return m_pNumericalLayout;
}

void QGroupWidget::AddWidgetCreator(std::function<QWidget *()> fnCreate,
                                    std::function<bool()> fnVisible)
{
    m_listCreators.append(std::move(fnCreate));
    m_listVisibleQueries.append(std::move(fnVisible));
    if (IsOpen())
        CreateSubWidgets();
}

void QGroupWidget::AddSubGroup(QGroupWidget *pGroup)
{
    if (!pGroup || pGroup == this)
        return;
    pGroup->SetParent(this);
    pGroup->hide();
    m_listSubGroups.append(pGroup);
    AddWidgetCreator([pGroup]() -> QWidget * { return pGroup; },
                     [pGroup]() { return pGroup->HasVisibleChildWidget(); });
}

void QGroupWidget::CreateSubWidgets()
{
    // Take the pending lists first: a creator that registers further creators on this group must
    // not disturb the run, and every creator runs exactly once.
    const QList<std::function<QWidget *()>> creators = std::move(m_listCreators);
    const QList<std::function<bool()>> visibleQueries = std::move(m_listVisibleQueries);
    m_listCreators.clear();
    m_listVisibleQueries.clear();

    QApplication::setOverrideCursor(Qt::WaitCursor);
    for (int i = 0; i < creators.size(); ++i) {
        QWidget *pWidget = creators.at(i) ? creators.at(i)() : nullptr;
        // Nothing, or this group or one that holds it (which could not be placed inside it).
        if (!pWidget || pWidget == this || pWidget->isAncestorOf(this))
            continue;
        if (qobject_cast<QGroupWidget *>(pWidget)
            || qobject_cast<QNumericalWidgetBase *>(pWidget)) {
            PlaceNumericalWidget(pWidget);
        } else if (qobject_cast<QSbsImageWidget *>(pWidget)) {
            PlaceImageWidget(pWidget);
        } else {
            pWidget->deleteLater();
            continue;
        }
        const bool bVisible =
            i < visibleQueries.size() && visibleQueries.at(i) ? visibleQueries.at(i)() : true;
        pWidget->setVisible(bVisible);
    }
    QApplication::restoreOverrideCursor();
}

void QGroupWidget::PlaceNumericalWidget(QWidget *pWidget)
{
    m_pNumericalLayout->addWidget(pWidget);
    m_bImageRun = false;
}

void QGroupWidget::PlaceImageWidget(QWidget *pWidget)
{
    if (!m_bImageRun)
        CreateImageContainer();
    m_pCurrentImageLayout->addWidget(pWidget);
    m_bImageRun = true;
}

void QGroupWidget::CreateImageContainer()
{
    auto *pImageContainer = new QWidget(m_pNumericalContainer);
    m_pNumericalLayout->addWidget(pImageContainer);
    auto *pImageLayout = new FlowLayout(pImageContainer, -1, -1, -1);
    pImageLayout->setContentsMargins(0, 0, 0, 0);
    m_pCurrentImageLayout = pImageLayout;
}

void QGroupWidget::RemoveSubWidget(QWidget *pWidget)
{
    m_pNumericalLayout->removeWidget(pWidget);
    if (m_pCurrentImageLayout)
        m_pCurrentImageLayout->removeWidget(pWidget);
}

bool QGroupWidget::HasSubWidget() const
{
    return m_pNumericalLayout->count() > 0;
}

bool QGroupWidget::HasVisibleChildWidget() const
{
    for (const std::function<bool()> &fnVisible : m_listVisibleQueries) {
        if (!fnVisible || fnVisible())
            return true;
    }
    for (int i = 0; i < m_pNumericalLayout->count(); ++i) {
        QWidget *pWidget = m_pNumericalLayout->itemAt(i)->widget();
        if (const auto *pGroup = qobject_cast<QGroupWidget *>(pWidget)) {
            if (pGroup->HasVisibleChildWidget())
                return true;
        } else if (const auto *pNumerical = qobject_cast<QNumericalWidgetBase *>(pWidget)) {
            if (pNumerical->GetWidgetVisibility())
                return true;
        }
    }
    if (m_pCurrentImageLayout) {
        for (int i = 0; i < m_pCurrentImageLayout->count(); ++i) {
            QWidget *pWidget = m_pCurrentImageLayout->itemAt(i)->widget();
            if (const auto *pGroup = qobject_cast<QGroupWidget *>(pWidget)) {
                if (pGroup->HasVisibleChildWidget())
                    return true;
            } else if (const auto *pImage = qobject_cast<QSbsImageWidget *>(pWidget)) {
                if (pImage->GetSbsarVisibleif())
                    return true;
            }
        }
    }
    return false;
}

void QGroupWidget::SetTitleButtonMargins(int nLeft, int nTop, int nRight, int nBottom)
{
    if (m_pTitleButton)
        m_pTitleButton->setContentsMargins(nLeft, nTop, nRight, nBottom);
}

void QGroupWidget::SetNumericalContainerMargins(int nLeft, int nTop, int nRight, int nBottom)
{
    if (m_pNumericalContainer)
        m_pNumericalLayout->setContentsMargins(nLeft, nTop, nRight, nBottom);
}

void QGroupWidget::SetNumericalContainerSpacing(int nSpacing)
{
    if (m_pNumericalContainer)
        m_pNumericalLayout->setSpacing(nSpacing);
}

void QGroupWidget::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event);
    QStyleOption option;
    option.initFrom(this);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
}

void QGroupWidget::OnTitleButtonClicked(bool bChecked)
{
    if (bChecked)
        CreateSubWidgets();
    m_pNumericalContainer->setVisible(bChecked);
    m_pTitleButton->setText(TitleText(bChecked));
    emit Clicked(bChecked);
}

// Open means the container is not hidden within the group, whether or not the group itself is
// on screen yet: a panel built before it is shown keeps its open groups open.
bool QGroupWidget::IsOpen() const
{
    return m_pNumericalContainer->isVisibleTo(this);
}

QString QGroupWidget::TitleText(bool bOpen) const
{
    return QLatin1String(bOpen ? kExpandedMarker : kCollapsedMarker) + m_strText;
}
