#include "QNumericalWidgetImage.h"

#include "VelaFileDropPrivate.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QEvent>
#include <QFileInfo>
#include <QLabel>
#include <QToolButton>

namespace {

struct SuffixBit
{
    unsigned int uBit;
    const char *szSuffix;
};

// The suffixes of each accepted file type, in the order they are listed.
const SuffixBit kSuffixBits[] = {
    { QNumericalWidgetImage::AcceptImage_Jpg, "jpg" },
    { QNumericalWidgetImage::AcceptImage_Jpg, "jpeg" },
    { QNumericalWidgetImage::AcceptImage_Bmp, "bmp" },
    { QNumericalWidgetImage::AcceptImage_Gif, "gif" },
    { QNumericalWidgetImage::AcceptImage_Png, "png" },
    { QNumericalWidgetImage::AcceptImage_Tga, "tga" },
    { QNumericalWidgetImage::AcceptImage_Tif, "tif" },
    { QNumericalWidgetImage::AcceptImage_Tif, "tiff" },
    { QNumericalWidgetImage::AcceptImage_Exr, "exr" },
    { QNumericalWidgetImage::AcceptImage_Hdr, "hdr" },
    { QNumericalWidgetImage::AcceptImage_Mp4, "mp4" },
    { QNumericalWidgetImage::AcceptImage_Avi, "avi" },
    { QNumericalWidgetImage::AcceptImage_Wmv, "wmv" },
};

} // namespace

QNumericalWidgetImage::QNumericalWidgetImage(QWidget *parent)
    : QNumericalWidgetBase(parent)
{
    m_kUi.setupUi(this);
    m_kUi.qtImageLabel->setAcceptDrops(true);
    m_kUi.qtImageLabel->installEventFilter(this);
}

QNumericalWidgetImage::~QNumericalWidgetImage()
{
    // The preview outlives this part of the object while QWidget deletes its children.
    m_kUi.qtImageLabel->removeEventFilter(this);
}

Ui::NumericalWidgetImage *QNumericalWidgetImage::UI()
{
    return &m_kUi;
}

void QNumericalWidgetImage::CreateUi(const Lu::CDynamicWidgetVariableBase &var,
                                     const Lu::CDynamicWidgetDescBase &desc)
{
    Q_UNUSED(var);
    Q_UNUSED(desc);
    m_kUi.qtImageNameLabel->setText(GetName());
    // A second Initialize must not make a click report twice.
    const auto kUnique = Qt::UniqueConnection;
    connect(m_kUi.qtLoadPushButton, &QToolButton::clicked, this,
            &QNumericalWidgetImage::OnLoadButtonHit, kUnique);
    connect(m_kUi.qtSavePushButton, &QToolButton::clicked, this,
            &QNumericalWidgetImage::OnSaveButtonHit, kUnique);
    connect(m_kUi.qtLaunchPushButton, &QToolButton::clicked, this,
            &QNumericalWidgetImage::OnLaunchButtonHit, kUnique);
    connect(m_kUi.qtResetPushButton, &QToolButton::clicked, this,
            &QNumericalWidgetImage::OnResetButtonHit, kUnique);
    connect(m_kUi.qtDeletePushButton, &QToolButton::clicked, this,
            &QNumericalWidgetImage::OnDeleteButtonHit, kUnique);
    connect(m_kUi.qtAdjustToolButton, &QToolButton::clicked, this,
            &QNumericalWidgetImage::OnAdjustButtonHit, kUnique);
}

Vela::CVector4<float> QNumericalWidgetImage::GetValue()
{
    return Vela::CVector4<float>(1.0f, 1.0f, 1.0f, 1.0f);
}

void QNumericalWidgetImage::SetImage(const QImage &image)
{
    m_kUi.qtImageLabel->clear();
    m_kUi.qtImageLabel->setPixmap(QPixmap::fromImage(image));
}

QSize QNumericalWidgetImage::GetImageSize()
{
    return m_kUi.qtImageLabel->size();
}

QLabel *QNumericalWidgetImage::getImageLabel()
{
    return m_kUi.qtImageLabel;
}

void QNumericalWidgetImage::SetLabelColor(QString styleSheet)
{
    m_kUi.qtImageNameLabel->setStyleSheet(styleSheet);
}

void QNumericalWidgetImage::SetFileTypeFilter(EAcceptImageType mask)
{
    m_lstAcceptedSuffixes.clear();
    for (const SuffixBit &kEntry : kSuffixBits) {
        if (static_cast<unsigned int>(mask) & kEntry.uBit)
            m_lstAcceptedSuffixes.append(QString::fromLatin1(kEntry.szSuffix));
    }
}

void QNumericalWidgetImage::SetVisibleButtons(EButtonList mask)
{
    const QList<QToolButton *> buttons = Buttons();
    for (int i = 0; i < buttons.size(); ++i)
        buttons[i]->setVisible(static_cast<unsigned int>(mask) & (1u << i));
}

void QNumericalWidgetImage::SetButtonsEnableState(EButtonList mask, bool enabled)
{
    const QList<QToolButton *> buttons = Buttons();
    for (int i = 0; i < buttons.size(); ++i) {
        if (static_cast<unsigned int>(mask) & (1u << i))
            buttons[i]->setEnabled(enabled);
    }
}

void QNumericalWidgetImage::SetWidgetVisibility(bool bVisible)
{
    m_bWidgetVisibility = bVisible;
}

bool QNumericalWidgetImage::GetWidgetVisibility() const
{
    return m_bWidgetVisibility;
}

QString QNumericalWidgetImage::LabelName() const
{
    return m_kUi.qtImageNameLabel->objectName();
}

void QNumericalWidgetImage::SetLabelName(QString strName)
{
    m_kUi.qtImageNameLabel->setObjectName(strName);
}

QString QNumericalWidgetImage::text() const
{
    return m_kUi.qtImageNameLabel->text();
}

void QNumericalWidgetImage::setText(const QString &strText)
{
    m_kUi.qtImageNameLabel->setText(strText);
}

Qt::TextFormat QNumericalWidgetImage::textFormat() const
{
    return m_kUi.qtImageNameLabel->textFormat();
}

void QNumericalWidgetImage::setTextFormat(Qt::TextFormat eFormat)
{
    m_kUi.qtImageNameLabel->setTextFormat(eFormat);
}

bool QNumericalWidgetImage::wordWrap() const
{
    return m_kUi.qtImageNameLabel->wordWrap();
}

void QNumericalWidgetImage::setWordWrap(bool bWrap)
{
    m_kUi.qtImageNameLabel->setWordWrap(bWrap);
}

QPixmap QNumericalWidgetImage::pixmap() const
{
    return m_kUi.qtImageLabel->pixmap(Qt::ReturnByValue);
}

void QNumericalWidgetImage::setPixmap(const QPixmap &pixmap)
{
    m_kUi.qtImageLabel->setPixmap(pixmap);
}

bool QNumericalWidgetImage::hasScaledContents() const
{
    return m_kUi.qtImageLabel->hasScaledContents();
}

void QNumericalWidgetImage::setScaledContents(bool bScaled)
{
    m_kUi.qtImageLabel->setScaledContents(bScaled);
}

void QNumericalWidgetImage::UpdateUi(const Vela::CVector4<float> &v)
{
    Q_UNUSED(v);
}

bool QNumericalWidgetImage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_kUi.qtImageLabel || !isEnabled())
        return QNumericalWidgetBase::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::MouseButtonDblClick:
        emit OpenTextureFileDialog(GetName());
        return true;
    case QEvent::DragEnter: {
        auto *dragEvent = static_cast<QDragEnterEvent *>(event);
        if (!IsAcceptedDrag(dragEvent))
            return QNumericalWidgetBase::eventFilter(watched, event);
        dragEvent->acceptProposedAction();
        return true;
    }
    case QEvent::Drop:
        // The host loads and checks the file; only the drag enter looked at the suffix.
        emit DropToLoadTextureFile(GetName(), watched, static_cast<QDropEvent *>(event));
        return true;
    default:
        return QNumericalWidgetBase::eventFilter(watched, event);
    }
}

void QNumericalWidgetImage::OnLoadButtonHit()
{
    emit LoadTexture(GetName());
}

void QNumericalWidgetImage::OnSaveButtonHit()
{
    emit SaveTexture(GetName());
}

void QNumericalWidgetImage::OnLaunchButtonHit()
{
    emit LaunchTexture(GetName());
}

void QNumericalWidgetImage::OnResetButtonHit()
{
    emit ResetTexture(GetName());
}

void QNumericalWidgetImage::OnDeleteButtonHit()
{
    emit DeleteTexture(GetName());
}

void QNumericalWidgetImage::OnAdjustButtonHit()
{
    emit AdjustTexture(GetName());
}

void QNumericalWidgetImage::OnUpdatePreviewImage()
{
    emit UpdatePreviewImage(GetName());
}

bool QNumericalWidgetImage::IsAcceptedDrag(const QDragEnterEvent *event) const
{
    // Only the first file of a drag counts.
    const QList<QString> files = VelaFileDrop::LocalFiles(event->mimeData());
    if (files.isEmpty())
        return false;
    const QString strSuffix = QFileInfo(files.first()).suffix();
    return !strSuffix.isEmpty() && m_lstAcceptedSuffixes.contains(strSuffix, Qt::CaseInsensitive);
}

QList<QToolButton *> QNumericalWidgetImage::Buttons()
{
    return { m_kUi.qtLoadPushButton,  m_kUi.qtSavePushButton,   m_kUi.qtLaunchPushButton,
             m_kUi.qtResetPushButton, m_kUi.qtDeletePushButton, m_kUi.qtAdjustToolButton };
}
