#ifndef VELADROPTEST_H
#define VELADROPTEST_H

#include <QApplication>
#include <QDropEvent>
#include <QWidget>
#include <QtTest>

#include <utility>

// Drag events as the window system delivers them for files dragged in from a file manager, and a
// host interface for the drag-and-drop list and table. Drag data and one-shot drops: VelaTest.h.
namespace VelaDropTest {

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
        m_entered = m_lastAccepted = send<QDragEnterEvent>(pos, false);
    }
    ~DragSession()
    {
        if (m_entered) {
            QDragLeaveEvent event;
            QApplication::sendEvent(m_target, &event);
        }
    }
    Q_DISABLE_COPY(DragSession)

    bool entered() const { return m_entered; }
    bool move(const QPoint &pos)
    {
        return m_entered && (m_lastAccepted = send<QDragMoveEvent>(pos, m_lastAccepted));
    }
    bool drop(const QPoint &pos)
    {
        return std::exchange(m_entered, false) && send<QDropEvent>(pos, false);
    }

private:
    template<class Event>
    bool send(const QPoint &pos, bool preAccepted)
    {
        Event event(pos, Qt::CopyAction | Qt::MoveAction, m_mimeData, Qt::LeftButton,
                    Qt::NoModifier);
        event.setAccepted(preAccepted);
        QApplication::sendEvent(m_target, &event);
        return event.isAccepted();
    }

    QWidget *m_target;
    const QMimeData *m_mimeData;
    bool m_entered = false;
    bool m_lastAccepted = false;
};

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

} // namespace VelaDropTest

#endif // VELADROPTEST_H
