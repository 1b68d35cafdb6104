#ifndef QKDFKTEMPLATETABLEMANAGER_H
#define QKDFKTEMPLATETABLEMANAGER_H

#include "VelaExport.h"

#include <QString>
#include <QTableWidget>

// A grid of facial expression templates for the user to pick from. Every file of the folder the
// host names is one template: its caption is the file name without extension and its thumbnail is
// the PNG of the same base name in the folder's "Icons" subfolder, framed by the host's
// ":/images/ItemOutline.png". The host reads the choice back by cell.
class VELA_WIDGETS_EXPORT QKdFKTemplateTableManager : public QTableWidget
{
    Q_OBJECT

public:
    explicit QKdFKTemplateTableManager(QWidget *parent = nullptr);

    bool InitManager(int nLimitColNum, int nThumbnailWidth, int nThumbnailHeight);
    int GetLimitColNum();

    bool UpdateTable(QString strTemplatePath, QString strUnused, int nLimitRowNum);
    QString GetSelectedExpTmpName(int nRow, int nColumn);

protected:
    QStyleOptionViewItem viewOptions() const override;

private:
    int m_nLimitColNum;
    int m_nLimitRowNum;
    int m_nThumbnailWidth;
    int m_nThumbnailHeight;
};

#endif // QKDFKTEMPLATETABLEMANAGER_H
