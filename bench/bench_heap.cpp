// Heap bytes that one combo editor costs a host, against the same label, arrows, slider and spin
// box laid out by hand.
#include "VelaBench.h"

#include "QComboDoubleSpinBox.h"
#include "QComboNonlinearDoubleSpinBox.h"
#include "QComboSpinBox.h"

#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSlider>
#include <QSpinBox>
#include <QVBoxLayout>

#include <memory>

// The hand-built twin: caption above a row of arrow, slider, arrow and spin box.
template<typename SpinBox>
static QWidget *handBuiltEditor()
{
    auto *editor = new QWidget;
    auto *column = new QVBoxLayout(editor);
    column->addWidget(new QLabel(QStringLiteral("Caption")));
    auto *row = new QHBoxLayout;
    row->addWidget(new QLabel);
    row->addWidget(new QSlider(Qt::Horizontal));
    row->addWidget(new QLabel);
    column->addLayout(row);
    column->addWidget(new SpinBox);
    return editor;
}

template<typename Create>
static double bytesPerWidget(Create create)
{
    constexpr int kCount = 50;
    std::vector<std::unique_ptr<QWidget>> widgets;
    widgets.reserve(kCount);
    const std::size_t bytes = HeapBytesDuring([&] {
        for (int i = 0; i < kCount; ++i)
            widgets.emplace_back(create());
    });
    return double(bytes) / kCount;
}

VELA_BENCH_FIGURE({ "heap per widget: QComboSpinBox",
                    [] { return bytesPerWidget([] { return new QComboSpinBox; }); },
                    [] { return bytesPerWidget(handBuiltEditor<QSpinBox>); }, "B", 1.2 })
VELA_BENCH_FIGURE({ "heap per widget: QComboDoubleSpinBox",
                    [] { return bytesPerWidget([] { return new QComboDoubleSpinBox; }); },
                    [] { return bytesPerWidget(handBuiltEditor<QDoubleSpinBox>); }, "B", 1.2 })
VELA_BENCH_FIGURE({ "heap per widget: QComboNonlinearDoubleSpinBox",
                    [] { return bytesPerWidget([] { return new QComboNonlinearDoubleSpinBox; }); },
                    [] { return bytesPerWidget(handBuiltEditor<QDoubleSpinBox>); }, "B", 1.2 })
