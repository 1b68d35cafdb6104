#ifndef QCOMBOLABELBUTTON_H
#define QCOMBOLABELBUTTON_H

#include "VelaExport.h"
#include "ui_qtComboLabelButton.h"

#include <QLabel>
#include <QPixmap>
#include <QString>

// A removable tag: a caption with a small delete cross beside it. Clicking the cross emits
// Delete(); the host removes the tag. The outer label's own text stays empty: the caption is the
// inner label.
class VELA_WIDGETS_EXPORT QComboLabelButton : public QLabel
{
    Q_OBJECT

public:
    explicit QComboLabelButton(QString text, QWidget *parent = nullptr);
    ~QComboLabelButton() override;

    QString GetLabelText();
    void SetPixmapToLabel(const QPixmap &kPixmap);

signals:
    void Delete();

private slots:
    void OnDeleteButtonHit();

private:
    Ui::qtComboLabelButton m_kUi;
};

#endif // QCOMBOLABELBUTTON_H
