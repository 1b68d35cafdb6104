#ifndef VELATEST_H
#define VELATEST_H

#include <QApplication>
#include <QColor>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QImage>
#include <QMimeData>
#include <QMouseEvent>
#include <QObject>
#include <QPoint>
#include <QStringList>
#include <QUrl>
#include <QWheelEvent>
#include <QWidget>

#include <memory>

// Test classes of one folder share one executable: each registers itself here and the shared main
// runs them in registration order (pass a class name as the first argument to run only that one).
namespace VelaTest {

using Factory = QObject *(*)();
int registerTestClass(const char *name, Factory factory);

// Sends one wheel notch (positive: away from the user) to the centre of widget and returns
// whether the widget accepted the event.
inline bool wheel(QWidget *widget, int notches = 1,
                  Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    const QPoint pos = widget->rect().center();
    QWheelEvent event(pos, widget->mapToGlobal(pos), QPoint(), QPoint(0, 120 * notches),
                      Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
    return event.isAccepted();
}

// Moves the pointer over widget to pos with these buttons held.
inline void mouseMove(QWidget *widget, const QPoint &pos, Qt::MouseButtons buttons = Qt::LeftButton)
{
    QMouseEvent move(QEvent::MouseMove, pos, widget->mapToGlobal(pos), Qt::NoButton, buttons,
                     Qt::NoModifier);
    QApplication::sendEvent(widget, &move);
}

// Writes a file into dir and returns its path (empty when it could not be written).
inline QString writeFile(const QString &dir, const QString &name, const QByteArray &content)
{
    const QString path = QDir(dir).filePath(name);
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() ? path
                                                                                    : QString();
}

// Writes a solid-colour image (PNG unless the name says otherwise) and returns its path.
inline QString writeImage(const QString &dir, const QString &name, const QColor &color,
                          const QSize &size = QSize(16, 16))
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    const QString path = QDir(dir).filePath(name);
    return image.save(path, name.endsWith(QLatin1String(".png")) ? "PNG" : nullptr) ? path
                                                                                    : QString();
}

// Drag data as a file manager offers it: the files as local URLs.
inline std::unique_ptr<QMimeData> fileMime(const QStringList &files)
{
    auto mime = std::make_unique<QMimeData>();
    QList<QUrl> urls;
    for (const QString &file : files)
        urls << QUrl::fromLocalFile(file);
    mime->setUrls(urls);
    return mime;
}

// Sends a drag enter at pos and returns whether it was accepted; an accepted drag then leaves.
inline bool dragEnter(QWidget *target, const QPoint &pos, const QMimeData *mime)
{
    QDragEnterEvent enter(pos, Qt::CopyAction | Qt::MoveAction, mime, Qt::LeftButton,
                          Qt::NoModifier);
    QApplication::sendEvent(target, &enter);
    if (enter.isAccepted()) {
        QDragLeaveEvent leave;
        QApplication::sendEvent(target, &leave);
    }
    return enter.isAccepted();
}

// Drags mime onto target and drops dropMime (default: the same data) at pos, routed as Qt
// routes them: only a target that accepted the enter sees the drop. Returns whether the drop
// was accepted (false when no drop took place).
inline bool dropAt(QWidget *target, const QPoint &pos, const QMimeData *mime,
                   const QMimeData *dropMime = nullptr,
                   Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction)
{
    QDragEnterEvent enter(pos, actions, mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &enter);
    if (!enter.isAccepted())
        return false;
    QDropEvent drop(pos, actions, dropMime ? dropMime : mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &drop);
    return drop.isAccepted();
}

} // namespace VelaTest

#define VELA_TEST_CLASS(Class)                                                                     \
    static const int vela_test_registered_##Class =                                                \
        VelaTest::registerTestClass(#Class, []() -> QObject * { return new Class; });

#endif // VELATEST_H
