#include "FuzzSupport.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <cmath>
#include <limits>

namespace VelaFuzz {

int Input::integer()
{
    switch (byte() % 8) {
    case 0:
        return std::numeric_limits<int>::max();
    case 1:
        return std::numeric_limits<int>::min();
    case 2:
        return -int(byte());
    case 3: {
        std::uint32_t value = 0;
        for (int i = 0; i < 4; ++i)
            value = (value << 8) | byte();
        return int(value);
    }
    default:
        return int(byte()) - 16;
    }
}

double Input::real()
{
    switch (byte() % 10) {
    case 0:
        return std::numeric_limits<double>::quiet_NaN();
    case 1:
        return std::numeric_limits<double>::infinity();
    case 2:
        return -std::numeric_limits<double>::infinity();
    case 3:
        return std::numeric_limits<double>::max();
    case 4:
        return -1e300;
    default:
        return (int(byte()) - 64) / double(1 + byte());
    }
}

QByteArray Input::bytes(int maximum)
{
    const int length = index(maximum + 1);
    QByteArray result;
    for (int i = 0; i < length && !atEnd(); ++i)
        result.append(char(byte()));
    return result;
}

QString Input::text(int maximum)
{
    return QString::fromUtf8(bytes(maximum));
}

void EnsureApplication()
{
    if (QApplication::instance())
        return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "vela-fuzz";
    static char *argv[] = { name, nullptr };
    // Qt's warnings about what the fuzzer feeds (missing icons, bad images) would be printed
    // thousands of times a second; VELA_FUZZ_TRACE keeps them.
    if (!qEnvironmentVariableIsSet("VELA_FUZZ_TRACE"))
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    new QApplication(argc, argv);
    VelaCatalog::RejectModalDialogs();
}

RunScope::~RunScope()
{
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

RunFile::RunFile(const std::uint8_t *data, std::size_t size)
{
    static QTemporaryDir dir;
    static int run = 0;
    m_path = dir.filePath(QStringLiteral("input%1").arg(run++));
    QFile file(m_path);
    m_written = file.open(QIODevice::WriteOnly)
        && file.write(reinterpret_cast<const char *>(data), qint64(size)) == qint64(size);
}

RunFile::~RunFile()
{
    QFile::remove(m_path);
}

} // namespace VelaFuzz
