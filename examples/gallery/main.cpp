// The Vela Widgets gallery: every widget of the library with sample data.
//   vela-gallery                    opens the window
//   vela-gallery --screenshots DIR  writes one PNG per widget into DIR and exits
//   vela-gallery --list             prints the name of every page (one PNG each)
#include "GalleryWindow.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTextStream>

int main(int argc, char **argv)
{
    QString screenshotDir;
    for (int i = 1; i + 1 < argc; ++i) {
        if (qstrcmp(argv[i], "--screenshots") == 0)
            screenshotDir = QString::fromLocal8Bit(argv[i + 1]);
    }
    const bool list = argc > 1 && qstrcmp(argv[1], "--list") == 0;
    if (list) {
        for (const GalleryEntry &entry : GalleryEntries())
            QTextStream(stdout) << entry.name << '\n';
        return 0;
    }
    // Screenshots need no display.
    if (!screenshotDir.isEmpty() && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");

    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("vela-gallery"));
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Shows every widget of Vela Widgets."));
    parser.addHelpOption();
    parser.addOption({ QStringLiteral("screenshots"),
                       QStringLiteral("Write one PNG per widget into <dir> and exit."),
                       QStringLiteral("dir") });
    parser.process(app);

    GalleryWindow window;
    if (parser.isSet(QStringLiteral("screenshots"))) {
        window.show();
        const int failures = window.writeScreenshots(parser.value(QStringLiteral("screenshots")));
        QTextStream(stdout) << "Wrote screenshots to "
                            << parser.value(QStringLiteral("screenshots"))
                            << (failures ? QStringLiteral(" (%1 failed)").arg(failures) : QString())
                            << '\n';
        return failures == 0 ? 0 : 1;
    }
    window.show();
    return app.exec();
}
