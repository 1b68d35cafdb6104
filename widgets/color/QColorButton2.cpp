#include "QColorButton2.h"

#include "QColorButtonIconPrivate.h"

QColorButton2::QColorButton2(QWidget *parent)
    : QToolButton(parent)
    , m_kColorDialog(parent)
{
    setIconSize(QSize(32, 32));
    connect(this, &QColorButton2::clicked, this, &QColorButton2::Click);
    connect(&m_kColorDialog, &VelaColorDialog2::currentColorChanged, this,
            &QColorButton2::OnCurrentColorChanged);
    connect(&m_kColorDialog, &VelaColorDialog2::EditFinished, this, &QColorButton2::OnEditFinished);
    connect(&m_kColorDialog, &VelaColorDialog2::ResetColor, this, &QColorButton2::OnResetColor);
}

QColorButton2::~QColorButton2() = default;

void QColorButton2::SetColor(const QColor &kColor)
{
    m_kColor = kColor;
    const bool bWasBlocked = m_kColorDialog.blockSignals(true);
    m_kColorDialog.setCurrentColor(m_kColor);
    m_kColorDialog.blockSignals(bWasBlocked);
    UpdateIcon();
    Q_EMIT ColorChanged();
    Q_EMIT ColorChanged2(m_kColor);
}

QColor QColorButton2::GetColor() const
{
    return m_kColor;
}

void QColorButton2::setIconSize(const QSize &kSize)
{
    QToolButton::setIconSize(kSize);
    UpdateIcon();
}

void QColorButton2::SetModeless()
{
    m_kColorDialog.SetModeless();
}

void QColorButton2::SetPosition(QWidget *pkMainWnd, EColorDialogPosition ePosition,
                                const QPoint &kMargin)
{
    m_kColorDialog.SetMainWnd(pkMainWnd);
    m_kColorDialog.SetPosition(ePosition);
    m_kColorDialog.SetMargin(kMargin);
}

VelaColorDialog2 *QColorButton2::GetColorDialog()
{
    return &m_kColorDialog;
}

void QColorButton2::Click()
{
    m_kColorDialog.ResetPickingScreenColor();
    m_kColorDialog.setCurrentColor(m_kColor);

    if (m_kColorDialog.IsModeless()) {
        m_kResetColor = m_kColor;
        m_kColorDialog.setCurrentColor(m_kColor);
        Q_EMIT Clicked();
        m_kColorDialog.show();
        return;
    }

    if (m_kColorDialog.exec() != QDialog::Accepted)
        return;
    m_kColor = m_kColorDialog.selectedColor();
    UpdateIcon();
    Q_EMIT ColorChanged();
    Q_EMIT ColorChanged2(m_kColor);
}

void QColorButton2::Close()
{
    m_kColorDialog.close();
}

void QColorButton2::OnCurrentColorChanged(const QColor &kColor)
{
    // The screen picker reports every colour under the cursor; only its end is an edit.
    if (m_kColorDialog.IsPickingScreenColor())
        return;
    m_kColor = kColor;
    if (m_kColorDialog.IsEditing())
        Q_EMIT CurrentColorChanged(m_kColor);
    else
        Q_EMIT EditFinished(kColor);
}

void QColorButton2::OnEditFinished(const QColor &kColor)
{
    m_kColor = kColor;
    Q_EMIT EditFinished(kColor);
}

void QColorButton2::OnResetColor()
{
    m_kColor = m_kResetColor;
    Q_EMIT EditFinished(m_kColor);
}

void QColorButton2::CustomDisconnect()
{
    disconnect(this, nullptr, nullptr, nullptr);
    connect(this, &QColorButton2::clicked, this, &QColorButton2::Click);
}

void QColorButton2::UpdateIcon()
{
    setIcon(Vela::ColorButtonIcon(iconSize(), m_kColor));
}
