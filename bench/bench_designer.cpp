// What Designer pays to load the collection and place every widget once.
#include "VelaBench.h"

#include <QWidget>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

extern "C" QObject *qt_plugin_instance();

static void designerPath(benchmark::State &state)
{
    for (auto _ : state) {
        QObject *instance = qt_plugin_instance();
        auto *collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(instance);
        for (QDesignerCustomWidgetInterface *descriptor : collection->customWidgets())
            delete descriptor->createWidget(nullptr);
        // Measure a fresh collection every time, as a new Designer session would build it.
        delete instance;
    }
}

VELA_BENCH_CASE({ "designer: instance + customWidgets + createWidget of all", designerPath })
