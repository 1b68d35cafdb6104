// Random bytes as the host's facial-key INI file.
#include "FuzzSupport.h"

#include "CKdFKModifyCellWidget.h"
#include "QKdFKModifyTableManager.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

using namespace VelaFuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const RunScope scope;
    static QTemporaryDir dir;
    // A new name every run: QSettings caches what it read per path.
    static int run = 0;
    const QString path = dir.filePath(QStringLiteral("keys%1.ini").arg(run++));
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly))
            return 0;
        file.write(reinterpret_cast<const char *>(data), qint64(size));
    }
    {
        QKdFKModifyTableManager table;
        table.InitManager(path);
        table.resize(400, 300);
        table.show();
        table.grab();
    }
    // The table leaves the cells it makes without a parent, for the host to free.
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (qobject_cast<CKdFKModifyCellWidget *>(widget))
            delete widget;
    }
    QFile::remove(path);
    return 0;
}
