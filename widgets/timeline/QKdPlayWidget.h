#ifndef QKDPLAYWIDGET_H
#define QKDPLAYWIDGET_H

#include "VelaExport.h"
#include "VelaResult.h"

#include <QWidget>

class QCloseEvent;
class QResizeEvent;

// Hosts the application's render view (its first descendant widget) and keeps that view at the
// aspect ratio of the export size: letterboxed or pillarboxed and centred, or filling the whole
// widget when the ratio is not locked. The widget cannot be closed by the user.
class VELA_WIDGETS_EXPORT QKdPlayWidget : public QWidget
{
    Q_OBJECT

public:
    explicit QKdPlayWidget(QWidget *parent = nullptr);

    void UpdateKdCoreWndSize();

    Vela::Result SetExportSize(int width, int height);
    Vela::Result GetExportSize(int &width, int &height);
    Vela::Result UpdateExportSize();

    void SetLockRatio(bool bLock);
    bool IsLockRatio();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    bool m_bFill = false;
    bool m_bLockRatio = true;
    int m_nExportWidth = 800;
    int m_nExportHeight = 600;
};

#endif // QKDPLAYWIDGET_H
