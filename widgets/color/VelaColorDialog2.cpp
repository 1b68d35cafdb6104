#include "VelaColorDialog2.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QPushButton>
#include <QSpinBox>

VelaColorDialog2::VelaColorDialog2(QWidget *parent)
    : QColorDialog(parent)
{
    // Everything below adapts the dialog's own child widgets, which a platform dialog lacks.
    setOption(QColorDialog::DontUseNativeDialog);

    const QList<QPushButton *> kPushButtons = findChildren<QPushButton *>();
    if (!kPushButtons.isEmpty()) {
        // The dialog's first push button starts picking a colour from the screen.
        m_pkScreenColorButton = kPushButtons.first();
        m_pkScreenColorButton->installEventFilter(this);
        connect(m_pkScreenColorButton, &QPushButton::clicked, this,
                &VelaColorDialog2::OnScreenColorButtonClicked);
    }

    // The colour field and the luminance field are private classes of QColorDialog; their position
    // in the child list differs between Qt versions, their class names do not.
    const QList<QWidget *> kWidgets = findChildren<QWidget *>();
    for (QWidget *pkWidget : kWidgets) {
        const QLatin1String kClassName(pkWidget->metaObject()->className());
        if (!m_pkColorField && kClassName == QLatin1String("QColorPicker"))
            m_pkColorField = pkWidget;
        else if (!m_pkLuminanceField && kClassName == QLatin1String("QColorLuminancePicker"))
            m_pkLuminanceField = pkWidget;
    }
    if (m_pkColorField)
        m_pkColorField->installEventFilter(this);
    if (m_pkLuminanceField)
        m_pkLuminanceField->installEventFilter(this);

    m_kSpinBoxes = findChildren<QSpinBox *>();
    for (QSpinBox *pkSpinBox : qAsConst(m_kSpinBoxes))
        pkSpinBox->installEventFilter(this);

    const QList<QDialogButtonBox *> kButtonBoxes = findChildren<QDialogButtonBox *>();
    if (kButtonBoxes.size() == 1) {
        QDialogButtonBox *pkButtonBox = kButtonBoxes.first();
        // QColorDialog keeps pointers to its OK and Cancel buttons, so they stay alive, hidden.
        const QList<QAbstractButton *> kOldButtons = pkButtonBox->buttons();
        for (QAbstractButton *pkButton : kOldButtons) {
            pkButtonBox->removeButton(pkButton);
            pkButton->setParent(pkButtonBox);
            pkButton->hide();
        }
        m_pkResetButton =
            pkButtonBox->addButton(QStringLiteral("Reset Color"), QDialogButtonBox::ActionRole);
        connect(m_pkResetButton, &QPushButton::clicked, this, &VelaColorDialog2::ResetColor);
    }
}

void VelaColorDialog2::SetModeless()
{
    m_bModeless = true;
}

bool VelaColorDialog2::IsModeless()
{
    return m_bModeless;
}

bool VelaColorDialog2::IsEditing()
{
    return m_bEditing;
}

bool VelaColorDialog2::IsPickingScreenColor()
{
    return m_bPickingScreenColor;
}

void VelaColorDialog2::ResetPickingScreenColor()
{
    m_bPickingScreenColor = false;
}

void VelaColorDialog2::SetMainWnd(QWidget *pkMainWnd)
{
    m_pkMainWnd = pkMainWnd;
}

void VelaColorDialog2::SetPosition(EColorDialogPosition ePosition)
{
    m_ePosition = ePosition;
}

void VelaColorDialog2::SetMargin(const QPoint &kMargin)
{
    m_kMargin = kMargin;
}

bool VelaColorDialog2::eventFilter(QObject *pkWatched, QEvent *pkEvent)
{
    if (pkWatched && pkWatched == m_pkScreenColorButton) {
        // QColorDialog disables this button while its screen picker runs.
        if (pkEvent->type() == QEvent::EnabledChange) {
            if (!m_pkScreenColorButton->isEnabled()) {
                m_bPickingScreenColor = true;
            } else if (m_bScreenPickRequested && m_bPickingScreenColor) {
                m_bScreenPickRequested = false;
                m_bPickingScreenColor = false;
                Q_EMIT EditFinished(currentColor());
            }
        }
    } else if (pkWatched
               && (pkWatched == m_pkColorField || pkWatched == m_pkLuminanceField
                   || m_kSpinBoxes.contains(qobject_cast<QSpinBox *>(pkWatched)))) {
        if (pkEvent->type() == QEvent::MouseButtonPress) {
            m_bEditing = true;
        } else if (pkEvent->type() == QEvent::MouseButtonRelease) {
            m_bEditing = false;
            Q_EMIT EditFinished(currentColor());
        }
    }
    return QColorDialog::eventFilter(pkWatched, pkEvent);
}

void VelaColorDialog2::showEvent(QShowEvent *event)
{
    if (!m_pkMainWnd || m_ePosition == ECDP_None) {
        QColorDialog::showEvent(event);
        return;
    }

    if (m_kMainWndGeometry.isNull()) {
        m_kMainWndGeometry = m_pkMainWnd->geometry();
        const QRect &M = m_kMainWndGeometry;
        QRect G = geometry();
        const int mx = m_kMargin.x();
        const int my = m_kMargin.y();
        // Only the left and top edges move; the right and bottom edges stay where they are.
        switch (m_ePosition) {
        case ECDP_TopLeft:
            G.setLeft(M.left() + mx);
            G.setTop(M.top() + my);
            break;
        case ECDP_TopRight:
            G.setLeft(G.left() + M.right() - mx - G.right());
            G.setTop(M.top() + my);
            break;
        case ECDP_BottomLeft:
            G.setLeft(M.left() + mx);
            G.setTop(G.top() + M.bottom() - G.bottom() - my);
            break;
        case ECDP_BottomRight:
            G.setLeft(G.left() + M.right() - mx - G.right());
            G.setTop(G.top() + M.bottom() - G.bottom() - my);
            break;
        case ECDP_None:
            break;
        }
        setGeometry(G);
    }
    Q_EMIT ColorChanged2(currentColor());
    m_bPickingScreenColor = false;
}

void VelaColorDialog2::OnScreenColorButtonClicked()
{
    m_bScreenPickRequested = true;
}
