#ifndef QSBSIMAGEWIDGET_H
#define QSBSIMAGEWIDGET_H

#include "LuDynamicWidgetRecords.h"
#include "VelaContainers.h"
#include "VelaExport.h"
#include "VelaResult.h"

#include <QImage>
#include <QSize>
#include <QString>
#include <QWidget>

#include <cstdint>
#include <string>

class QComboBoxEx;
class QLabel;

// The image slot of a Substance material input: a 102 x 102 preview, a drop-down telling where the
// slot's image comes from (one of the material's channels, an external texture, a custom image
// file or nothing) and the input's name. The widget does no file work: choices, clicks and dropped
// files become signals carrying the slot's uid, and the host answers through SetImage,
// SetSelectedChannel and the other setters.
class VELA_WIDGETS_EXPORT QSbsImageWidget : public QWidget
{
    Q_OBJECT

public:
    explicit QSbsImageWidget(QWidget *parent = nullptr);
    ~QSbsImageWidget() override;

    // As the full form with an empty channel map (no drop-down) and no external textures; the
    // widget accepts dropped files.
    Vela::Result Initialize(unsigned int uid, QString name);
    // Builds the slot. With a non-empty channel map the drop-down lists the eleven channels, one
    // entry per external texture (item data 11, 12, ...), then the custom and the none entries;
    // channel, custom and none texts come from the map (a missing key gives an empty text).
    // bAcceptDrops decides whether image files may be dropped on the slot.
    Vela::Result Initialize(unsigned int uid, QString name,
                            Vela::CMap<Vela::ESubstanceUiChannel, QString> channelNames,
                            Vela::CArrayList<std::wstring> externTextures, bool bAcceptDrops);

    // 99998 selects the custom entry, 99999 the none entry, any other value the entry at that
    // position (a position outside the list is ignored). Nothing without a drop-down.
    void SetSelectedChannel(int c);
    // The channel of the current entry: 11 for any external texture; 99999 without a drop-down.
    Vela::ESubstanceUiChannel GetCurrentChannel();

    void SetImage(const QImage &image);
    void SetImageTip(const QString &strTip);
    void SetLabelColor(QString strStyleSheet);
    // The accepted file suffixes as one text, for example "png;jpg;tga".
    void SetFileTypeFilter(const QString &strFilter);
    void SetSbsarVisibleif(bool bVisible);
    bool GetSbsarVisibleif() const;

    uint32_t GetUid() const;
    QString GetName() const;
    QLabel *GetNameLabel() const;
    QLabel *GetImageLabel() const;
    QSize GetImageSize() const;

public slots:
    // For this slot's uid only: shows or hides the widget (signals blocked) and records it.
    void OnUpdateWidgetSbsarVisibleif(uint32_t uUID, bool bVisible);

signals:
    void OpenCustomImageFileDialog(uint32_t uUid);
    void ImportImageFromChannel(uint32_t uUid, Vela::ESubstanceUiChannel eChannel);
    // nExternNumber counts the external textures from 0, in the order given to Initialize.
    void ImportImageFromExtern(uint32_t uUid, int nExternNumber, QString strExternTexName);
    void RemoveImage(uint32_t uUid);
    void DropFileCustomImageFile(uint32_t uUid, QString strFileName);
    void ChannelChanged();
    void OpenCustomImageMenu(uint32_t uUid);
    void MouseHoverEnterInImageLabel();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private slots:
    void OnComboBoxIndexChanged(int nIndex);
    void OnComboBoxActivated(int nIndex);

private:
    void CreateComboBox(const Vela::CMap<Vela::ESubstanceUiChannel, QString> &channelNames,
                        const Vela::CArrayList<std::wstring> &externTextures);
    void CreateUi();
    void ClearUi();
    // True when the file's suffix, lower-cased, occurs in the file type filter text.
    bool IsLuTextureTypeFile(const QString &strFile) const;

    uint32_t m_uUid = 0;
    QString m_strName;
    QString m_strFileTypeFilter;
    bool m_bSbsarVisibleif = true;
    QLabel *m_pNameLabel = nullptr;
    QLabel *m_pImageLabel = nullptr;
    QComboBoxEx *m_pComboBox = nullptr;
    int m_nCustomIndex = -1;
    int m_nNoneIndex = -1;
};

#endif // QSBSIMAGEWIDGET_H
