#include "QSbsImageWidget.h"

#include "QComboBoxEx.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QPixmap>
#include <QSignalBlocker>
#include <QUrl>
#include <QVBoxLayout>

// The signals carry the uid and the channel under the names their signatures spell.
static const int s_channelMetaTypeId =
    qRegisterMetaType<Vela::ESubstanceUiChannel>("Vela::ESubstanceUiChannel");
static const int s_uidMetaTypeId = qRegisterMetaType<uint32_t>("uint32_t");

static const int kChannelCount = 11;
static const int kSlotSize = 102;

QSbsImageWidget::QSbsImageWidget(QWidget *parent)
    : QWidget(parent)
{
    Q_UNUSED(s_channelMetaTypeId);
    Q_UNUSED(s_uidMetaTypeId);
}

QSbsImageWidget::~QSbsImageWidget() = default;

Vela::Result QSbsImageWidget::Initialize(unsigned int uid, QString name)
{
    return Initialize(uid, std::move(name), {}, {}, true);
}

Vela::Result
QSbsImageWidget::Initialize(unsigned int uid, QString name,
                            Vela::CMap<Vela::ESubstanceUiChannel, QString> channelNames,
                            Vela::CArrayList<std::wstring> externTextures, bool bAcceptDrops)
{
    ClearUi();
    m_uUid = uid;
    m_strName = std::move(name);
    setObjectName(QStringLiteral("qtSbsImageWidget"));
    auto *mainLayout = new QVBoxLayout(this);
    mainLayout->setSpacing(0);
    mainLayout->setContentsMargins(0, 0, 0, 0);
    if (!channelNames.empty())
        CreateComboBox(channelNames, externTextures);
    CreateUi();
    setAcceptDrops(bAcceptDrops);
    if (m_pComboBox) {
        connect(m_pComboBox, QOverload<int>::of(&QComboBox::activated), this,
                &QSbsImageWidget::OnComboBoxActivated);
        connect(m_pComboBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                &QSbsImageWidget::OnComboBoxIndexChanged);
    }
    return Vela::Result(Vela::Result::Success);
}

void QSbsImageWidget::SetSelectedChannel(int c)
{
    if (!m_pComboBox)
        return;
    if (c == Vela::SubstanceChannel_Custom)
        m_pComboBox->setCurrentIndex(m_nCustomIndex);
    else if (c == Vela::SubstanceChannel_None)
        m_pComboBox->setCurrentIndex(m_nNoneIndex);
    else if (c >= 0 && c < m_pComboBox->count())
        m_pComboBox->setCurrentIndex(c);
}

Vela::ESubstanceUiChannel QSbsImageWidget::GetCurrentChannel()
{
    if (!m_pComboBox)
        return Vela::SubstanceChannel_None;
    const int nIndex = m_pComboBox->currentIndex();
    if (nIndex == m_nCustomIndex)
        return Vela::SubstanceChannel_Custom;
    if (nIndex == m_nNoneIndex || nIndex < 0)
        return Vela::SubstanceChannel_None;
    if (nIndex >= kChannelCount)
        return Vela::SubstanceChannel_ExternTexture;
    return static_cast<Vela::ESubstanceUiChannel>(m_pComboBox->itemData(nIndex).toInt());
}

void QSbsImageWidget::SetImage(const QImage &image)
{
    if (m_pImageLabel)
        m_pImageLabel->setPixmap(QPixmap::fromImage(image));
}

void QSbsImageWidget::SetImageTip(const QString &strTip)
{
    if (m_pImageLabel)
        m_pImageLabel->setToolTip(strTip);
}

void QSbsImageWidget::SetLabelColor(QString strStyleSheet)
{
    if (m_pNameLabel)
        m_pNameLabel->setStyleSheet(strStyleSheet);
}

void QSbsImageWidget::SetFileTypeFilter(const QString &strFilter)
{
    m_strFileTypeFilter = strFilter;
}

void QSbsImageWidget::SetSbsarVisibleif(bool bVisible)
{
    m_bSbsarVisibleif = bVisible;
}

bool QSbsImageWidget::GetSbsarVisibleif() const
{
    return m_bSbsarVisibleif;
}

uint32_t QSbsImageWidget::GetUid() const
{
    return m_uUid;
}

QString QSbsImageWidget::GetName() const
{
    return m_strName;
}

QLabel *QSbsImageWidget::GetNameLabel() const
{
    return m_pNameLabel;
}

QLabel *QSbsImageWidget::GetImageLabel() const
{
    return m_pImageLabel;
}

QSize QSbsImageWidget::GetImageSize() const
{
    return m_pImageLabel ? m_pImageLabel->size() : QSize();
}

void QSbsImageWidget::OnUpdateWidgetSbsarVisibleif(uint32_t uUID, bool bVisible)
{
    if (uUID != m_uUid)
        return;
    const QSignalBlocker blocker(this);
    setVisible(bVisible);
    m_bSbsarVisibleif = bVisible;
}

bool QSbsImageWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_pImageLabel || !isEnabled())
        return QWidget::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        if (static_cast<QMouseEvent *>(event)->button() == Qt::RightButton)
            emit OpenCustomImageMenu(m_uUid);
        else
            emit MouseHoverEnterInImageLabel();
        return true;
    case QEvent::MouseButtonDblClick:
        emit OpenCustomImageFileDialog(m_uUid);
        return true;
    case QEvent::Enter:
        emit MouseHoverEnterInImageLabel();
        return true;
    default:
        return QWidget::eventFilter(watched, event);
    }
}

void QSbsImageWidget::dragEnterEvent(QDragEnterEvent *event)
{
    QWidget::dragEnterEvent(event);
    const QMimeData *mimeData = event->mimeData();
    if (!mimeData || !mimeData->hasUrls() || mimeData->urls().isEmpty())
        return;
    if (IsLuTextureTypeFile(mimeData->urls().first().toLocalFile()))
        event->acceptProposedAction();
}

void QSbsImageWidget::dropEvent(QDropEvent *event)
{
    QWidget::dropEvent(event);
    const QMimeData *mimeData = event->mimeData();
    if (!mimeData || !mimeData->hasUrls() || mimeData->urls().isEmpty())
        return;
    const QString strFile = mimeData->urls().first().toLocalFile();
    if (strFile.isEmpty() || !QFileInfo(strFile).isFile())
        return;
    if (isEnabled())
        emit DropFileCustomImageFile(m_uUid, strFile);
    event->acceptProposedAction();
}

void QSbsImageWidget::OnComboBoxIndexChanged(int nIndex)
{
    emit ChannelChanged();
    if (nIndex == m_nNoneIndex) {
        emit RemoveImage(m_uUid);
    } else if (nIndex < 0) {
        return;
    } else if (nIndex >= kChannelCount) {
        if (nIndex < m_nCustomIndex)
            emit ImportImageFromExtern(m_uUid, nIndex - kChannelCount,
                                       m_pComboBox->itemText(nIndex));
    } else {
        emit ImportImageFromChannel(
            m_uUid, static_cast<Vela::ESubstanceUiChannel>(m_pComboBox->itemData(nIndex).toInt()));
    }
}

void QSbsImageWidget::OnComboBoxActivated(int nIndex)
{
    if (nIndex == m_nCustomIndex)
        emit OpenCustomImageFileDialog(m_uUid);
}

void QSbsImageWidget::CreateComboBox(
    const Vela::CMap<Vela::ESubstanceUiChannel, QString> &channelNames,
    const Vela::CArrayList<std::wstring> &externTextures)
{
    const auto textOf = [&channelNames](Vela::ESubstanceUiChannel eChannel) {
        const auto it = channelNames.find(eChannel);
        return it != channelNames.end() ? it->second : QString();
    };

    m_pComboBox = new QComboBoxEx;
    m_pComboBox->SetIgnoreWheelEvent(false);
    m_pComboBox->setFocusPolicy(Qt::StrongFocus);
    m_pComboBox->setSizePolicy(
        QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred, QSizePolicy::ComboBox));
    m_pComboBox->setFixedWidth(kSlotSize);
    for (int nChannel = 0; nChannel < kChannelCount; ++nChannel) {
        const auto eChannel = static_cast<Vela::ESubstanceUiChannel>(nChannel);
        m_pComboBox->addItem(textOf(eChannel), nChannel);
    }
    int nData = Vela::SubstanceChannel_ExternTexture;
    for (const std::wstring &strTexture : externTextures)
        m_pComboBox->addItem(QString::fromStdWString(strTexture), nData++);
    m_nCustomIndex = m_pComboBox->count();
    m_pComboBox->addItem(textOf(Vela::SubstanceChannel_Custom), int(Vela::SubstanceChannel_Custom));
    m_nNoneIndex = m_pComboBox->count();
    m_pComboBox->addItem(textOf(Vela::SubstanceChannel_None), int(Vela::SubstanceChannel_None));
    m_pComboBox->setCurrentIndex(m_nCustomIndex);
}

void QSbsImageWidget::CreateUi()
{
    m_pNameLabel = new QLabel(m_strName);
    m_pNameLabel->setMaximumWidth(kSlotSize);

    m_pImageLabel = new QLabel;
    m_pImageLabel->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_pImageLabel->setFixedSize(kSlotSize, kSlotSize);
    m_pImageLabel->setScaledContents(true);
    m_pImageLabel->setStyleSheet(QStringLiteral("border: 1px solid #505050"));
    m_pImageLabel->installEventFilter(this);

    auto *mainLayout = static_cast<QVBoxLayout *>(layout());
    mainLayout->addWidget(m_pImageLabel, 0, Qt::AlignHCenter);
    if (m_pComboBox)
        mainLayout->addWidget(m_pComboBox);
    mainLayout->addWidget(m_pNameLabel, 0, Qt::AlignHCenter);
}

// A second Initialize starts from an empty widget.
void QSbsImageWidget::ClearUi()
{
    delete m_pNameLabel;
    delete m_pImageLabel;
    delete m_pComboBox;
    delete layout();
    m_pNameLabel = nullptr;
    m_pImageLabel = nullptr;
    m_pComboBox = nullptr;
    m_nCustomIndex = -1;
    m_nNoneIndex = -1;
}

bool QSbsImageWidget::IsLuTextureTypeFile(const QString &strFile) const
{
    // A name without a suffix would match any filter text as an empty part of it.
    const QString strSuffix = QFileInfo(strFile).suffix().toLower();
    return !strSuffix.isEmpty() && m_strFileTypeFilter.contains(strSuffix, Qt::CaseInsensitive);
}
