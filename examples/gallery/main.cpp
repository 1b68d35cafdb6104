// The Vela Widgets gallery: every widget of the library with sample data.
//   vela-gallery                    opens the window
//   vela-gallery --screenshots DIR  writes one PNG per widget into DIR, at device-pixel ratio 1
//                                   (NAME.png) and 2 (NAME@2x.png), a picture of the whole
//                                   window (gallery.png) and DIR/index.html
//   vela-gallery --list             prints the name of every page (one PNG each)
#include "GalleryWindow.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTextStream>

static const char kScaleVariable[] = "VELA_GALLERY_SCALED";

static bool writeIndex(const QString &dir)
{
    QFile file(QDir(dir).filePath(QStringLiteral("index.html")));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    QTextStream out(&file);
    out.setCodec("UTF-8");
    out << "<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>Vela Widgets</title>\n"
           "<style>body{background:#1c1c1c;color:#d0d0d0;font-family:sans-serif}"
           "h2{color:#82be0f}figure{display:inline-block;margin:12px;vertical-align:top}"
           "img{border:1px solid #505050}</style></head><body>\n<h1>Vela Widgets</h1>\n";
    QString group;
    for (const GalleryEntry &entry : GalleryEntries()) {
        if (entry.group != group) {
            group = entry.group;
            out << "<h2>" << group.toHtmlEscaped() << "</h2>\n";
        }
        const QString name = entry.name.toHtmlEscaped();
        out << "<figure><img src=\"" << name << ".png\" srcset=\"" << name << ".png 1x, " << name
            << "@2x.png 2x\" alt=\"" << name << "\"><figcaption><b>" << name << "</b><br>"
            << entry.description.toHtmlEscaped() << "</figcaption></figure>\n";
    }
    out << "</body></html>\n";
    return out.status() == QTextStream::Ok;
}

int main(int argc, char **argv)
{
    bool screenshots = false;
    for (int i = 1; i < argc; ++i) {
        if (qstrcmp(argv[i], "--list") == 0) {
            for (const GalleryEntry &entry : GalleryEntries())
                QTextStream(stdout) << entry.name << '\n';
            return 0;
        }
        screenshots = screenshots || qstrcmp(argv[i], "--screenshots") == 0;
    }
    // Screenshots need no display.
    if (screenshots && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");

    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("vela-gallery"));
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Shows every widget of Vela Widgets."));
    parser.addHelpOption();
    const QCommandLineOption shotsOption(
        QStringLiteral("screenshots"),
        QStringLiteral("Write one PNG per widget (at scale 1 and 2) and index.html into <dir>."),
        QStringLiteral("dir"));
    parser.addOption(shotsOption);
    parser.addOption({ QStringLiteral("list"), QStringLiteral("Print the name of every page.") });
    parser.process(app);

    GalleryWindow window;
    if (!parser.isSet(shotsOption)) {
        window.show();
        return app.exec();
    }

    const QString dir = parser.value(shotsOption);
    if (qEnvironmentVariableIsSet(kScaleVariable))
        return window.writeScreenshots(dir, QStringLiteral("@2x")) == 0 ? 0 : 1;

    int failures = window.writeScreenshots(dir, QString());
    if (!window.writeWindowShot(QDir(dir).filePath(QStringLiteral("gallery.png")),
                                QStringLiteral("MaterialPanel")))
        ++failures;
    // The second scale needs a process of its own: Qt reads the scale factor at start-up.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("2"));
    environment.insert(QLatin1String(kScaleVariable), QStringLiteral("1"));
    QProcess scaled;
    scaled.setProcessEnvironment(environment);
    scaled.setProcessChannelMode(QProcess::ForwardedChannels);
    scaled.start(QApplication::applicationFilePath(), { QStringLiteral("--screenshots"), dir });
    if (!scaled.waitForFinished(-1) || scaled.exitStatus() != QProcess::NormalExit
        || scaled.exitCode() != 0) {
        ++failures;
    }
    if (!writeIndex(dir))
        ++failures;
    QTextStream(stdout) << "Wrote " << GalleryEntries().size()
                        << " screenshots at scale 1 and 2 and "
                        << "index.html to " << QDir(dir).absolutePath() << '\n';
    return failures == 0 ? 0 : 1;
}
