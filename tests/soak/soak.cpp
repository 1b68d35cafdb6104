// Creates, shows, exercises and destroys every widget of the library again and again, and reports
// the memory the process holds, so that a leak or a growing cache shows as growth.
//   vela-soak [--cycles N] [--report-at N,N...]
// Exits non-zero when the resident size at the last report exceeds the first by more than 5%.
#include "VelaWidgetCatalog.h"

#include <QApplication>
#include <QFile>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTextStream>
#include <QWheelEvent>
#include <QWidget>

#include <memory>

static qint64 statusKiB(const char *field)
{
    QFile file(QStringLiteral("/proc/self/status"));
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray &line : file.readAll().split('\n')) {
        if (line.startsWith(field))
            return line.mid(int(qstrlen(field))).trimmed().split(' ').value(0).toLongLong();
    }
    return -1;
}

static void exercise(QWidget *widget)
{
    widget->resize(320, 200);
    widget->show();
    const QPoint center = widget->rect().center();
    QMouseEvent press(QEvent::MouseButtonPress, center, Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(widget, &press);
    QMouseEvent move(QEvent::MouseMove, center + QPoint(12, 3), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(widget, &move);
    QMouseEvent release(QEvent::MouseButtonRelease, center + QPoint(12, 3), Qt::LeftButton,
                        Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &release);
    QWheelEvent wheel(center, widget->mapToGlobal(center), QPoint(), QPoint(0, 120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &wheel);
    QKeyEvent key(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier);
    QApplication::sendEvent(widget, &key);
    widget->grab(); // paints
    widget->hide();
}

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    VelaCatalog::RejectModalDialogs();
    QStringList args = app.arguments();
    int cycles = 1000;
    QList<int> reportAt;
    for (int i = 1; i + 1 < args.size(); ++i) {
        if (args.at(i) == QLatin1String("--cycles"))
            cycles = args.at(i + 1).toInt();
        else if (args.at(i) == QLatin1String("--report-at"))
            for (const QString &n : args.at(i + 1).split(QLatin1Char(',')))
                reportAt << n.toInt();
    }
    if (reportAt.isEmpty())
        reportAt << cycles;

    QTextStream out(stdout);
    const QVector<VelaCatalog::Entry> &widgets = VelaCatalog::Widgets();
    out << "Soaking " << widgets.size() << " widget classes for " << cycles << " cycles\n";
    qint64 firstRss = -1;
    qint64 lastRss = -1;
    for (int cycle = 1; cycle <= cycles; ++cycle) {
        for (const VelaCatalog::Entry &entry : widgets) {
            std::unique_ptr<QWidget> widget(entry.create());
            exercise(widget.get());
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
        if (reportAt.contains(cycle)) {
            lastRss = statusKiB("VmRSS:");
            if (firstRss < 0)
                firstRss = lastRss;
            out << "cycle " << cycle << ": RSS " << lastRss << " KiB, peak RSS "
                << statusKiB("VmHWM:") << " KiB\n";
            out.flush();
        }
    }
    if (firstRss > 0 && lastRss > firstRss * 105 / 100) {
        out << "RSS grew by more than 5%\n";
        return 1;
    }
    return 0;
}
