#include "CKdFKModifyCellWidget.h"

#include "QComboSpinBox.h"
#include "QIntegerSliderWithRenameButton.h"

#include <QEvent>
#include <QLabel>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

#include <utility>

namespace {

const int kToggledOnValue = 100;

// One bound pair read from the host's facial-key file. A bound the list does not hold is left as
// the editor has it; reversed bounds are put in order so that the range stays usable.
struct ExtremePair
{
    explicit ExtremePair(const Vela::CArrayList<int> &kExtreme)
        : bHasMinimum(kExtreme.size() > 0)
        , bHasMaximum(kExtreme.size() > 1)
        , nMinimum(bHasMinimum ? kExtreme[0] : 0)
        , nMaximum(bHasMaximum ? kExtreme[1] : 0)
    {
        if (bHasMinimum && bHasMaximum && nMinimum > nMaximum)
            std::swap(nMinimum, nMaximum);
    }

    bool bHasMinimum;
    bool bHasMaximum;
    int nMinimum;
    int nMaximum;
};

} // namespace

CKdFKModifyCellWidget::CKdFKModifyCellWidget(QWidget *parent)
    : QWidget(parent)
    , ID(0)
    , m_nWeight(0)
    , m_pkSlider(new QIntegerSliderWithRenameButton(parent))
    , m_pkManager(nullptr)
    , m_bEditing(false)
{
    m_pkSlider->GetRenameButton()->hide();

    // The name goes into the editor's own caption label, not into the wrapper's name label.
    QComboSpinBox *pkCombo = m_pkSlider->GetSlider();
    pkCombo->SetSingleStep(1);
    pkCombo->SetIndependentSpin(true);
    pkCombo->SetLabelVisible(true);
    pkCombo->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);

    QVBoxLayout *pkLayout = new QVBoxLayout(this);
    pkLayout->setSpacing(0);
    pkLayout->setContentsMargins(0, 0, 0, 0);
    pkLayout->addWidget(m_pkSlider);

    connect(pkCombo, SIGNAL(EditStarted()), this, SLOT(OnSliderEditStarted()));
    connect(pkCombo, SIGNAL(EditFinished()), this, SLOT(OnSliderEditFinished()));
    connect(pkCombo, SIGNAL(ValueChanged(int)), this, SLOT(OnSliderValueChanged(int)));
    connect(m_pkSlider->GetRenameButton(), &QToolButton::clicked, this,
            &CKdFKModifyCellWidget::Rename);

    m_pkSlider->installEventFilter(this);
}

CKdFKModifyCellWidget::~CKdFKModifyCellWidget() = default;

void CKdFKModifyCellWidget::SetItem(int nID, int nValue, const QString &strName,
                                    const Vela::CArrayList<int> &kSliderExtreme,
                                    const Vela::CArrayList<int> &kSpinExtreme,
                                    QKdFKModifyTableManager *pManager)
{
    const ExtremePair kSlider(kSliderExtreme);
    const ExtremePair kSpin(kSpinExtreme);
    QComboSpinBox *pkCombo = GetSlider();
    {
        // The value goes in before the ranges, which then clamp it.
        const QSignalBlocker kBlocker(pkCombo);
        pkCombo->setText(strName);
        pkCombo->SetValue(nValue);
        if (kSlider.bHasMinimum)
            pkCombo->SetMinimum(kSlider.nMinimum);
        if (kSlider.bHasMaximum)
            pkCombo->SetMaximum(kSlider.nMaximum);
        if (kSpin.bHasMinimum)
            pkCombo->SetSpinMinimum(kSpin.nMinimum);
        if (kSpin.bHasMaximum)
            pkCombo->SetSpinMaximum(kSpin.nMaximum);
    }
    ID = nID;
    m_pkManager = pManager;
}

int CKdFKModifyCellWidget::GetValue()
{
    return GetSlider()->Value();
}

void CKdFKModifyCellWidget::SetValue(int nValue)
{
    const QSignalBlocker kBlocker(GetSlider());
    GetSlider()->SetValue(nValue);
}

int CKdFKModifyCellWidget::GetMinimum()
{
    return GetSlider()->Minimum();
}

void CKdFKModifyCellWidget::SetMinimum(int nValue)
{
    const QSignalBlocker kBlocker(GetSlider());
    GetSlider()->SetMinimum(nValue);
}

int CKdFKModifyCellWidget::GetMaximum()
{
    return GetSlider()->Maximum();
}

void CKdFKModifyCellWidget::SetMaximum(int nValue)
{
    const QSignalBlocker kBlocker(GetSlider());
    GetSlider()->SetMaximum(nValue);
}

int CKdFKModifyCellWidget::GetSpinMinimum()
{
    return GetSlider()->SpinMinimum();
}

void CKdFKModifyCellWidget::SetSpinMinimum(int nValue)
{
    const QSignalBlocker kBlocker(GetSlider());
    GetSlider()->SetSpinMinimum(nValue);
}

int CKdFKModifyCellWidget::GetSpinMaximum()
{
    return GetSlider()->SpinMaximum();
}

void CKdFKModifyCellWidget::SetSpinMaximum(int nValue)
{
    const QSignalBlocker kBlocker(GetSlider());
    GetSlider()->SetSpinMaximum(nValue);
}

int CKdFKModifyCellWidget::GetWeightWithID(int &nID)
{
    nID = ID;
    return m_nWeight;
}

int CKdFKModifyCellWidget::GetID()
{
    return ID;
}

void CKdFKModifyCellWidget::SetRenameButtonVisible(bool bVisible)
{
    m_pkSlider->GetRenameButton()->setVisible(bVisible);
}

QComboSpinBox *CKdFKModifyCellWidget::GetSlider()
{
    return m_pkSlider->GetSlider();
}

QLabel *CKdFKModifyCellWidget::GetNameLabel()
{
    return m_pkSlider->GetNameLabel();
}

bool CKdFKModifyCellWidget::IsEditing()
{
    return m_bEditing;
}

bool CKdFKModifyCellWidget::eventFilter(QObject *pkWatched, QEvent *pkEvent)
{
    // The wrapper never acts on the wheel; the event, left unaccepted, goes on to the parents so
    // that the table scrolls past the channel.
    if (pkEvent->type() == QEvent::Wheel)
        return true;
    return QObject::eventFilter(pkWatched, pkEvent);
}

void CKdFKModifyCellWidget::OnSliderValueChanged(int nSliderValue)
{
    EmitSliderEditStarted();
    emit SliderValueChanged(nSliderValue);
}

void CKdFKModifyCellWidget::OnSliderEditStarted()
{
    EmitSliderEditStarted();
}

void CKdFKModifyCellWidget::OnSliderEditFinished()
{
    EmitSliderEditFinished();
}

void CKdFKModifyCellWidget::Rename() { }

void CKdFKModifyCellWidget::mouseDoubleClickEvent(QMouseEvent *pkEvent)
{
    Q_UNUSED(pkEvent)

    // Toggle the channel fully on or off as one complete edit session.
    const int nValue = GetValue() == 0 ? kToggledOnValue : 0;
    const QSignalBlocker kBlocker(GetSlider());
    GetSlider()->SetValue(nValue);
    EmitSliderEditStarted();
    emit SliderValueChanged(nValue);
    EmitSliderEditFinished();
}

void CKdFKModifyCellWidget::EmitSliderEditStarted()
{
    if (m_bEditing)
        return;
    m_bEditing = true;
    emit SliderEditStarted();
}

void CKdFKModifyCellWidget::EmitSliderEditFinished()
{
    if (!m_bEditing)
        return;
    m_bEditing = false;
    emit SliderEditFinished();
}
