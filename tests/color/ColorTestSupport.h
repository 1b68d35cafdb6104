#ifndef COLORTESTSUPPORT_H
#define COLORTESTSUPPORT_H

#include "QColorButton.h"

#include <QApplication>
#include <QColorDialog>
#include <QDialog>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QWidget>

#include <functional>

namespace ColorTest {

// A modal run blocks the caller in exec(): the test acts on the dialog from a timer, as soon as the
// dialog is the active modal widget, and closes it if the action did not. `ran` tells afterwards
// whether it ever came up.
inline void onModal(const std::function<void(QDialog *)> &action, bool *ran, int attempts = 100)
{
    QTimer::singleShot(0, [action, ran, attempts]() {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (dialog) {
            *ran = true;
            action(dialog);
            // A failed check inside the action must not leave the caller blocked.
            if (dialog->isVisible())
                dialog->reject();
        } else if (attempts > 0) {
            onModal(action, ran, attempts - 1);
        }
    });
}

// One colour session as a user has it: a click on the button opens `dialog` modally, `action`
// works in it, and the dialog is closed when the click returns.
inline void runButtonSession(QWidget *button, QColorDialog *dialog,
                             const std::function<void(QColorDialog *)> &action)
{
    bool ran = false;
    onModal(
        [&](QDialog *modal) {
            QCOMPARE(modal, static_cast<QDialog *>(dialog));
            action(dialog);
        },
        &ran);
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(ran);
    QVERIFY(!dialog->isVisible());
}

// The colour that fills the button's icon (its two opposite corners agree); invalid when the icon
// has another size or is not one colour.
inline QColor iconColor(const QToolButton &button)
{
    const QImage image = button.icon().pixmap(button.iconSize()).toImage();
    if (image.size() != button.iconSize()
        || image.pixelColor(0, 0) != image.pixelColor(image.width() - 1, image.height() - 1))
        return QColor();
    return image.pixelColor(0, 0);
}

// The first descendant of `parent` whose class is exactly `className` (Qt's private classes have
// no public type to search for).
inline QWidget *childOfClass(const QWidget *parent, const char *className)
{
    const QList<QWidget *> children = parent->findChildren<QWidget *>();
    for (QWidget *child : children) {
        if (qstrcmp(child->metaObject()->className(), className) == 0)
            return child;
    }
    return nullptr;
}

} // namespace ColorTest

#endif // COLORTESTSUPPORT_H
