// The facial-key tables: filling the template grid as the folder grows, and reading the INI.
#include "VelaBench.h"

#include "QKdFKModifyTableManager.h"
#include "QKdFKTemplateTableManager.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <map>
#include <memory>

// A folder of `count` templates, each with a small thumbnail, made once per size.
static QString templateFolder(int count)
{
    static std::map<int, std::unique_ptr<QTemporaryDir>> folders;
    std::unique_ptr<QTemporaryDir> &dir = folders[count];
    if (!dir) {
        dir = std::make_unique<QTemporaryDir>();
        QDir(dir->path()).mkpath(QStringLiteral("Icons"));
        QImage thumbnail(32, 32, QImage::Format_ARGB32);
        thumbnail.fill(QColor(200, 160, 120));
        for (int i = 0; i < count; ++i) {
            const QString name = QStringLiteral("Expression %1").arg(i);
            QFile file(dir->filePath(name + QStringLiteral(".exp")));
            if (file.open(QIODevice::WriteOnly))
                file.write("template");
            thumbnail.save(dir->filePath(QStringLiteral("Icons/") + name + QStringLiteral(".png")));
        }
    }
    return dir->path();
}

static void templateTable(benchmark::State &state, int count)
{
    const QString folder = templateFolder(count);
    QKdFKTemplateTableManager table;
    table.InitManager(6, 64, 64);
    for (auto _ : state)
        table.UpdateTable(folder, QString(), (count + 5) / 6);
}

static void templates10(benchmark::State &state)
{
    templateTable(state, 10);
}

static void templates100(benchmark::State &state)
{
    templateTable(state, 100);
}

static void templates1000(benchmark::State &state)
{
    templateTable(state, 1000);
}

static void modifyTableInit(benchmark::State &state)
{
    const QString ini = QStringLiteral(VELA_SOURCE_DIR "/tests/data/facial/FacialKeys.ini");
    for (auto _ : state) {
        QKdFKModifyTableManager table;
        table.InitManager(ini);
    }
}

VELA_BENCH_CASE({ "scaling: template table UpdateTable, 100 vs 10 templates (per item)",
                  templates100, 100, templates10, 10, 1.1 })
VELA_BENCH_CASE({ "scaling: template table UpdateTable, 1000 vs 10 templates (per item)",
                  templates1000, 1000, templates10, 10, 1.1 })
VELA_BENCH_CASE({ "facial-key table: InitManager on the sample INI (128 channels)",
                  modifyTableInit })
