#ifndef QNUMERICALWIDGETIMAGE_H
#define QNUMERICALWIDGETIMAGE_H

#include "QNumericalWidgetBase.h"
#include "VelaExport.h"
#include "ui_NumericalWidgetImage.h"

#include <QImage>
#include <QPixmap>
#include <QSize>
#include <QString>
#include <QStringList>

class QDragEnterEvent;
class QDropEvent;
class QLabel;

// The texture slot of a material: an 80 x 80 preview, the input's name under it and six small
// tool buttons (load, save, launch, reset, delete, adjust colour). The widget does no file work:
// clicks, double-clicks and files dropped on the preview become signals that carry the input's
// name, and the host answers with SetImage. A dragged file is only taken when its suffix is one of
// the accepted image types. The slot carries no number: GetValue is always (1, 1, 1, 1).
class VELA_WIDGETS_EXPORT QNumericalWidgetImage : public QNumericalWidgetBase
{
    Q_OBJECT
    Q_PROPERTY(QString labelName READ LabelName WRITE SetLabelName)
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(Qt::TextFormat textFormat READ textFormat WRITE setTextFormat)
    Q_PROPERTY(bool wordWrap READ wordWrap WRITE setWordWrap)
    Q_PROPERTY(QPixmap pixmap READ pixmap WRITE setPixmap)

public:
    // File types a dropped file may have; each bit stands for the suffixes in its comment.
    enum EAcceptImageType : unsigned int {
        AcceptImage_None = 0x000,
        AcceptImage_Jpg = 0x001, // jpg, jpeg
        AcceptImage_Bmp = 0x002, // bmp
        AcceptImage_Gif = 0x004, // gif
        AcceptImage_Png = 0x008, // png
        AcceptImage_Tga = 0x010, // tga
        AcceptImage_Tif = 0x020, // tif, tiff
        AcceptImage_Exr = 0x040, // exr
        AcceptImage_Hdr = 0x080, // hdr
        AcceptImage_Mp4 = 0x100, // mp4
        AcceptImage_Avi = 0x200, // avi
        AcceptImage_Wmv = 0x400, // wmv
    };

    // The tool buttons, one bit each.
    enum EButtonList : unsigned int {
        Button_None = 0x00,
        Button_Load = 0x01,
        Button_Save = 0x02,
        Button_Launch = 0x04,
        Button_Reset = 0x08,
        Button_Delete = 0x10,
        Button_Adjust = 0x20,
        Button_All = 0x3F,
    };

    friend constexpr EAcceptImageType operator|(EAcceptImageType a, EAcceptImageType b)
    {
        return EAcceptImageType(static_cast<unsigned int>(a) | static_cast<unsigned int>(b));
    }
    friend constexpr EButtonList operator|(EButtonList a, EButtonList b)
    {
        return EButtonList(static_cast<unsigned int>(a) | static_cast<unsigned int>(b));
    }

    explicit QNumericalWidgetImage(QWidget *parent = nullptr);
    ~QNumericalWidgetImage() override;

    Ui::NumericalWidgetImage *UI();

    // Shows the input's name and connects the tool buttons.
    void CreateUi(const Lu::CDynamicWidgetVariableBase &var,
                  const Lu::CDynamicWidgetDescBase &desc) override;
    // Always (1, 1, 1, 1).
    Vela::CVector4<float> GetValue() override;

    // Replaces the preview with the image, scaled to the preview when scaled contents are on.
    void SetImage(const QImage &image);
    QSize GetImageSize();
    QLabel *getImageLabel();
    // Style sheet of the name label.
    void SetLabelColor(QString styleSheet);
    // The accepted suffixes become those of the set bits; unknown bits are ignored.
    void SetFileTypeFilter(EAcceptImageType mask);
    // Shows the buttons whose bits are set and hides the others.
    void SetVisibleButtons(EButtonList mask);
    // Enables or disables the buttons whose bits are set; the others keep their state.
    void SetButtonsEnableState(EButtonList mask, bool enabled);
    // This class keeps its own visibility flag beside the base's; neither shows or hides anything.
    void SetWidgetVisibility(bool bVisible);
    bool GetWidgetVisibility() const;

    // The object name (not the text) of the name label.
    QString LabelName() const;
    void SetLabelName(QString strName);
    // Forwarded to the name label.
    QString text() const;
    void setText(const QString &strText);
    Qt::TextFormat textFormat() const;
    void setTextFormat(Qt::TextFormat eFormat);
    bool wordWrap() const;
    void setWordWrap(bool bWrap);
    // Forwarded to the preview label.
    QPixmap pixmap() const;
    void setPixmap(const QPixmap &pixmap);
    bool hasScaledContents() const;
    void setScaledContents(bool bScaled);

signals:
    void OpenTextureFileDialog(QString strImageWidgetName);
    void DragEnterTextureLabel(QString strImageWidgetName, QDragEnterEvent *pDragEnterEvent);
    // pObject is the preview label; the host loads the file, checks it and accepts the drop.
    void DropToLoadTextureFile(QString strImageWidgetName, QObject *pObject,
                               QDropEvent *pDropEvent);
    void SaveTexture(QString strImageWidgetName);
    void LoadTexture(QString strImageWidgetName);
    void ResetTexture(QString strImageWidgetName);
    void DeleteTexture(QString strImageWidgetName);
    void LaunchTexture(QString strImageWidgetName);
    void AdjustTexture(QString strImageWidgetName);
    void UpdatePreviewImage(QString strImageWidgetName);
    void ChannelChanged();

protected:
    // Does nothing: the slot shows what the host pushes through SetImage.
    void UpdateUi(const Vela::CVector4<float> &v) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void OnLoadButtonHit();
    void OnSaveButtonHit();
    void OnLaunchButtonHit();
    void OnResetButtonHit();
    void OnDeleteButtonHit();
    void OnAdjustButtonHit();
    void OnUpdatePreviewImage();

private:
    // True when the first dragged file has one of the accepted suffixes.
    bool IsAcceptedDrag(const QDragEnterEvent *event) const;
    // The tool buttons in the order of their bits.
    QList<QToolButton *> Buttons();

    Ui::NumericalWidgetImage m_kUi;
    QStringList m_lstAcceptedSuffixes;
    bool m_bWidgetVisibility = true;
};

#endif // QNUMERICALWIDGETIMAGE_H
