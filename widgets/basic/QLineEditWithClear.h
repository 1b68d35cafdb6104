#ifndef QLINEEDITWITHCLEAR_H
#define QLINEEDITWITHCLEAR_H

#include "VelaExport.h"

#include <QLineEdit>

class QToolButton;

// A line edit with a clear button inside its right edge, shown while there is text. Hosts give
// the button its cross image with SetToolButtonCrossPixmap before the widget is first laid out:
// the button is placed by its maximum size.
class VELA_WIDGETS_EXPORT QLineEditWithClear : public QLineEdit
{
    Q_OBJECT

public:
    explicit QLineEditWithClear(QWidget *parent = nullptr);

    void SetToolButtonCrossPixmap(QString path);

public slots:
    void updateCloseButton(const QString &text);

signals:
    void ClearButtonClicked();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    QToolButton *m_pkClearButton;
};

#endif // QLINEEDITWITHCLEAR_H
