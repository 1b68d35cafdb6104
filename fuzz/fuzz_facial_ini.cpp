// Random bytes as the host's facial-key INI file.
#include "FuzzSupport.h"

#include "CKdFKModifyCellWidget.h"
#include "QKdFKModifyTableManager.h"

#include <QApplication>

using namespace VelaFuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const RunScope scope;
    const RunFile file(data, size);
    if (!file.isWritten())
        return 0;
    const QString &path = file.path();
    {
        QKdFKModifyTableManager table;
        table.InitManager(path);
        table.resize(400, 300);
        table.show();
        table.grab();
    }
    // What the cells posted while they were built reaches them, as the host's event loop would
    // deliver it, before they go: deleting a widget with posted events first searches the whole
    // queue for them.
    QApplication::sendPostedEvents();
    // The table leaves the cells it makes without a parent, for the host to free.
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (qobject_cast<CKdFKModifyCellWidget *>(widget))
            delete widget;
    }
    return 0;
}
