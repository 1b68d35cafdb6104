#ifndef VELADROPTEST_H
#define VELADROPTEST_H

#include <QApplication>
#include <QColor>
#include <QDir>
#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QImage>
#include <QList>
#include <QMimeData>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QWidget>
#include <QtTest>

#include <memory>

// Drag data and drag events as the window system delivers them for files dragged in from a file
// manager.
namespace VelaDropTest {

inline std::unique_ptr<QMimeData> fileDrag(const QStringList &files)
{
    auto mimeData = std::make_unique<QMimeData>();
    QList<QUrl> urls;
    for (const QString &file : files)
        urls << QUrl::fromLocalFile(file);
    mimeData->setUrls(urls);
    return mimeData;
}

inline std::unique_ptr<QMimeData> textDrag(const QString &text)
{
    auto mimeData = std::make_unique<QMimeData>();
    mimeData->setText(text);
    return mimeData;
}

// One drag over a drop target, delivered the way the window system delivers it: an enter, then
// moves and a drop that QApplication routes to the widget that accepted the enter (they never
// reach a widget that refused it), each move pre-accepted when the previous event was accepted.
// A session that ends without a drop sends the leave, so no target outlives its test.
class DragSession
{
public:
    DragSession(QWidget *target, const QPoint &pos, const QMimeData *mimeData)
        : m_target(target)
        , m_mimeData(mimeData)
    {
        QDragEnterEvent event(pos, kActions, mimeData, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &event);
        m_entered = m_lastAccepted = event.isAccepted();
    }
    ~DragSession()
    {
        if (m_entered) {
            QDragLeaveEvent event;
            QApplication::sendEvent(m_target, &event);
        }
    }
    DragSession(const DragSession &) = delete;
    DragSession &operator=(const DragSession &) = delete;

    bool entered() const { return m_entered; }

    bool move(const QPoint &pos)
    {
        if (!m_entered)
            return false;
        QDragMoveEvent event(pos, kActions, m_mimeData, Qt::LeftButton, Qt::NoModifier);
        event.setAccepted(m_lastAccepted);
        QApplication::sendEvent(m_target, &event);
        m_lastAccepted = event.isAccepted();
        return m_lastAccepted;
    }

    bool drop(const QPoint &pos)
    {
        if (!m_entered)
            return false;
        m_entered = false;
        QDropEvent event(pos, kActions, m_mimeData, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_target, &event);
        return event.isAccepted();
    }

private:
    static constexpr Qt::DropActions kActions = Qt::CopyAction | Qt::MoveAction;

    QWidget *m_target;
    const QMimeData *m_mimeData;
    bool m_entered = false;
    bool m_lastAccepted = false;
};

inline bool dragEnter(QWidget *target, const QPoint &pos, const QMimeData *mimeData)
{
    return DragSession(target, pos, mimeData).entered();
}

// Enters at pos and drops there; false when the enter was refused.
inline bool dropAt(QWidget *target, const QPoint &pos, const QMimeData *mimeData)
{
    return DragSession(target, pos, mimeData).drop(pos);
}

// The offscreen platform answers every raise of a window with this warning: expecting it counts
// the times a widget brought its window to the front (a missing one fails the test).
inline void expectWindowRaised(int times)
{
    for (int i = 0; i < times; ++i)
        QTest::ignoreMessage(QtWarningMsg, "This plugin does not support raise()");
}

// A host interface that records what the widget asks and answers as configured. Interface is
// QDragDropListWidgetInterface or QDragDropTableWidgetInterface, Item their item type.
template<class Interface, class Item>
class RecordingInterface : public Interface
{
public:
    bool CanDragEnter(QList<QString> kFiles) override
    {
        calls << QStringLiteral("CanDragEnter");
        files << kFiles;
        return enterAnswer;
    }
    bool CanDropFile(QString strFile, Item *pItem) override
    {
        calls << QStringLiteral("CanDropFile");
        files << QList<QString> { strFile };
        item = pItem;
        return dropAnswer;
    }
    bool CanDropFileList(QList<QString> kFiles) override
    {
        calls << QStringLiteral("CanDropFileList");
        files << kFiles;
        return dropAnswer;
    }
    void MouseRButtonRelease() override { calls << QStringLiteral("MouseRButtonRelease"); }

    bool enterAnswer = true;
    bool dropAnswer = true;
    QStringList calls;
    QList<QList<QString>> files;
    Item *item = nullptr;
};

// Writes a solid-colour PNG and returns its path.
inline QString writeImage(const QString &dir, const QString &name, const QSize &size,
                          const QColor &color)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    const QString path = QDir(dir).filePath(name);
    image.save(path, "PNG");
    return path;
}

} // namespace VelaDropTest

#endif // VELADROPTEST_H
