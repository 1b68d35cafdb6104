#include "QComboLabelButton.h"

QComboLabelButton::QComboLabelButton(QString text, QWidget *parent)
    : QLabel(parent)
{
    m_kUi.setupUi(this);
    m_kUi.qtLabel->setText(text);
    connect(m_kUi.qtDeleteButton, &QToolButton::clicked, this, &QComboLabelButton::Delete);
    m_kUi.qtDeleteButton->setFocusPolicy(Qt::NoFocus);
}

QComboLabelButton::~QComboLabelButton() = default;

QString QComboLabelButton::GetLabelText()
{
    return m_kUi.qtLabel->text();
}

void QComboLabelButton::SetPixmapToLabel(const QPixmap &kPixmap)
{
    m_kUi.qtLabel->setPixmap(kPixmap);
}

void QComboLabelButton::OnDeleteButtonHit()
{
    emit Delete();
}
