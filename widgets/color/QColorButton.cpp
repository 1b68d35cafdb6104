#include "QColorButton.h"

#include "QColorButtonIconPrivate.h"

QColorButton::QColorButton(QWidget *parent)
    : QToolButton(parent)
    , m_kColorDialog(parent)
{
    setIconSize(QSize(32, 32));
    connect(this, &QColorButton::clicked, this, &QColorButton::Click);
    connect(&m_kColorDialog, &QColorDialog::currentColorChanged, this, &QColorButton::SetColor);
}

QColorButton::~QColorButton() = default;

void QColorButton::SetColor(const QColor &kColor)
{
    if (kColor == m_kColor)
        return;
    m_bChanged = true;
    m_kColor = kColor;
    UpdateIcon();
    Q_EMIT ColorChanged();
    Q_EMIT ColorChanged2(m_kColor);
}

QColor QColorButton::GetColor() const
{
    return m_kColor;
}

void QColorButton::setIconSize(const QSize &kSize)
{
    QToolButton::setIconSize(kSize);
    UpdateIcon();
}

void QColorButton::Click()
{
    const QColor kOldColor = m_kColor;
    m_bChanged = false;
    if (m_kBeginFunction)
        m_kBeginFunction();

    m_kColorDialog.setCurrentColor(m_kColor);
    if (m_kColorDialog.exec() == QDialog::Accepted) {
        if (m_kEndFunction)
            m_kEndFunction();
        m_kColor = m_kColorDialog.selectedColor();
        UpdateIcon();
        if (m_kAcceptedFunction)
            m_kAcceptedFunction();
        return;
    }

    // Cancelled: undo what the live changes did on the way.
    SetColor(kOldColor);
    if (m_kEndFunction)
        m_kEndFunction();
    if (m_bChanged && m_kRevertedFunction)
        m_kRevertedFunction();
}

QColorDialog *QColorButton::ColorDialogUi()
{
    return &m_kColorDialog;
}

void QColorButton::SetUndoRedoFunctions(std::function<void()> kBegin, std::function<void()> kEnd,
                                        std::function<void()> kAccepted,
                                        std::function<void()> kReverted)
{
    m_kBeginFunction = std::move(kBegin);
    m_kEndFunction = std::move(kEnd);
    m_kAcceptedFunction = std::move(kAccepted);
    m_kRevertedFunction = std::move(kReverted);
}

void QColorButton::CustomDisconnect()
{
    disconnect(this, nullptr, nullptr, nullptr);
    connect(this, &QColorButton::clicked, this, &QColorButton::Click);
}

void QColorButton::UpdateIcon()
{
    setIcon(Vela::ColorButtonIcon(iconSize(), m_kColor));
}
