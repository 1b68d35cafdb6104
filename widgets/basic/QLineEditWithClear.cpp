#include "QLineEditWithClear.h"

#include "VelaImageLoader.h"

#include <QPixmap>
#include <QStyle>
#include <QToolButton>

QLineEditWithClear::QLineEditWithClear(QWidget *parent)
    : QLineEdit(parent)
    , m_pkClearButton(new QToolButton(this))
{
    m_pkClearButton->setObjectName(QStringLiteral("qtClearButton"));
    m_pkClearButton->setCursor(Qt::ArrowCursor);
    m_pkClearButton->hide();
    connect(m_pkClearButton, &QToolButton::clicked, this, [this]() {
        clear();
        emit ClearButtonClicked();
    });
    // clang-format off
    connect(this, SIGNAL(textChanged( const QString& )), this, SLOT(updateCloseButton( const QString& )));
    // clang-format on

    // Keep the text clear of the button, and leave room for the button itself.
    const int fw = style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
    const QSize buttonHint = m_pkClearButton->sizeHint();
    setStyleSheet(
        QStringLiteral("QLineEdit { padding-right: %1px; } ").arg(buttonHint.width() + fw + 1));
    const QSize minHint = minimumSizeHint();
    setMinimumSize(qMax(minHint.width(), buttonHint.height() + fw * 2 + 2),
                   qMax(minHint.height(), buttonHint.height() + fw * 2 + 2));
}

void QLineEditWithClear::SetToolButtonCrossPixmap(QString path)
{
    QImage image;
    QPixmap pixmap;
    if (Vela::LoadImageFile(path, image))
        pixmap = QPixmap::fromImage(image);
    m_pkClearButton->setIcon(QIcon(pixmap));
    m_pkClearButton->setIconSize(pixmap.size());
    m_pkClearButton->setMinimumSize(pixmap.size());
    m_pkClearButton->setMaximumSize(pixmap.size());
}

void QLineEditWithClear::updateCloseButton(const QString &text)
{
    m_pkClearButton->setVisible(!text.isEmpty());
}

void QLineEditWithClear::resizeEvent(QResizeEvent *)
{
    // Flush with the bottom right corner, inside the frame.
    const QSize sz = m_pkClearButton->maximumSize();
    const int fw = style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
    m_pkClearButton->move(rect().right() - sz.width() - fw, rect().bottom() + 1 - sz.height());
}
