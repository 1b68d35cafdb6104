#include "VelaTest.h"

#include <QLocale>
#include <QStandardPaths>
#include <QtTest>

#include <memory>
#include <vector>

namespace VelaTest {

struct Entry
{
    const char *name;
    Factory factory;
};

static std::vector<Entry> &registry()
{
    static std::vector<Entry> entries;
    return entries;
}

int registerTestClass(const char *name, Factory factory)
{
    registry().push_back({ name, factory });
    return int(registry().size());
}

} // namespace VelaTest

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QLocale::setDefault(QLocale::c());
    QStandardPaths::setTestModeEnabled(true);

    QStringList args = app.arguments();
    QString only;
    if (args.size() > 1 && !args.at(1).startsWith(QLatin1Char('-'))) {
        only = args.takeAt(1);
    }

    int failures = 0;
    for (const VelaTest::Entry &entry : VelaTest::registry()) {
        if (!only.isEmpty() && only != QLatin1String(entry.name))
            continue;
        std::unique_ptr<QObject> test(entry.factory());
        failures += QTest::qExec(test.get(), args);
    }
    return failures == 0 ? 0 : 1;
}
