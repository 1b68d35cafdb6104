#ifndef VELADESCRIPTORS_H
#define VELADESCRIPTORS_H

#include "VelaWidgetDescriptor.h"

// One named descriptor class per widget that Designer offers; each is VelaWidgetDescriptor with
// its own row and its own class name.

class QTransToolBtnPlugin : public VelaWidgetDescriptor
{
    Q_OBJECT
public:
    explicit QTransToolBtnPlugin(QObject *parent = nullptr);
};

class QVelaContainerPlugin : public VelaWidgetDescriptor
{
    Q_OBJECT
public:
    explicit QVelaContainerPlugin(QObject *parent = nullptr);
};

class QMouseSpinBoxPlugin : public VelaWidgetDescriptor
{
    Q_OBJECT
public:
    explicit QMouseSpinBoxPlugin(QObject *parent = nullptr);
};

class QKdPickContainerPlugin : public VelaWidgetDescriptor
{
    Q_OBJECT
public:
    explicit QKdPickContainerPlugin(QObject *parent = nullptr);
};

class QDragDropListWidgetPlugin : public VelaWidgetDescriptor
{
    Q_OBJECT
public:
    explicit QDragDropListWidgetPlugin(QObject *parent = nullptr);
};

class QDragDropTableWidgetPlugin : public VelaWidgetDescriptor
{
    Q_OBJECT
public:
    explicit QDragDropTableWidgetPlugin(QObject *parent = nullptr);
};

class QHoverToolBtnPlugin : public VelaWidgetDescriptor
{
    Q_OBJECT
public:
    explicit QHoverToolBtnPlugin(QObject *parent = nullptr);
};

class QKdFKModifyTableManagerPlugin : public VelaWidgetDescriptor
{
    Q_OBJECT
public:
    explicit QKdFKModifyTableManagerPlugin(QObject *parent = nullptr);
};

class QKdFKTemplateTableManagerPlugin : public VelaWidgetDescriptor
{
    Q_OBJECT
public:
    explicit QKdFKTemplateTableManagerPlugin(QObject *parent = nullptr);
};

class QLineEditWithClearPlugin : public VelaWidgetDescriptor
{
    Q_OBJECT
public:
    explicit QLineEditWithClearPlugin(QObject *parent = nullptr);
};

class QKdPlayWidgetPlugin : public VelaWidgetDescriptor
{
    Q_OBJECT
public:
    explicit QKdPlayWidgetPlugin(QObject *parent = nullptr);
};

class QStartEndIndicatorWidgetPlugin : public VelaWidgetDescriptor
{
    Q_OBJECT
public:
    explicit QStartEndIndicatorWidgetPlugin(QObject *parent = nullptr);
};

class QClickableLabelPlugin : public VelaWidgetDescriptor
{
    Q_OBJECT
public:
    explicit QClickableLabelPlugin(QObject *parent = nullptr);
};

class QKdCurveWidgetPlugin : public VelaWidgetDescriptor
{
    Q_OBJECT
public:
    explicit QKdCurveWidgetPlugin(QObject *parent = nullptr);
};

class QItemLabelPlugin : public VelaWidgetDescriptor
{
    Q_OBJECT
public:
    explicit QItemLabelPlugin(QObject *parent = nullptr);
};

class QColorButtonPlugin : public VelaWidgetDescriptor
{
    Q_OBJECT
public:
    explicit QColorButtonPlugin(QObject *parent = nullptr);
};

class QColorButtonPlugin2 : public VelaWidgetDescriptor
{
    Q_OBJECT
public:
    explicit QColorButtonPlugin2(QObject *parent = nullptr);
};

class QComboSpinBoxPlugin : public VelaWidgetDescriptor
{
    Q_OBJECT
public:
    explicit QComboSpinBoxPlugin(QObject *parent = nullptr);
};

class QComboDoubleSpinBoxPlugin : public VelaWidgetDescriptor
{
    Q_OBJECT
public:
    explicit QComboDoubleSpinBoxPlugin(QObject *parent = nullptr);
};

class QComboNonlinearDoubleSpinBoxPlugin : public VelaWidgetDescriptor
{
    Q_OBJECT
public:
    explicit QComboNonlinearDoubleSpinBoxPlugin(QObject *parent = nullptr);
};

class QComboBoxExPlugin : public VelaWidgetDescriptor
{
    Q_OBJECT
public:
    explicit QComboBoxExPlugin(QObject *parent = nullptr);
};

class QSpinBoxExPlugin : public VelaWidgetDescriptor
{
    Q_OBJECT
public:
    explicit QSpinBoxExPlugin(QObject *parent = nullptr);
};

class QDoubleSpinBoxExPlugin : public VelaWidgetDescriptor
{
    Q_OBJECT
public:
    explicit QDoubleSpinBoxExPlugin(QObject *parent = nullptr);
};

class QSliderExPlugin : public VelaWidgetDescriptor
{
    Q_OBJECT
public:
    explicit QSliderExPlugin(QObject *parent = nullptr);
};

class QVisemeButtonPlugin : public VelaWidgetDescriptor
{
    Q_OBJECT
public:
    explicit QVisemeButtonPlugin(QObject *parent = nullptr);
};

class QVisemeCurveWidgetLitePlugin : public VelaWidgetDescriptor
{
    Q_OBJECT
public:
    explicit QVisemeCurveWidgetLitePlugin(QObject *parent = nullptr);
};

class QDiphoneListWidgetPlugin : public VelaWidgetDescriptor
{
    Q_OBJECT
public:
    explicit QDiphoneListWidgetPlugin(QObject *parent = nullptr);
};

class QVisemeListWidgetPlugin : public VelaWidgetDescriptor
{
    Q_OBJECT
public:
    explicit QVisemeListWidgetPlugin(QObject *parent = nullptr);
};

class QCurveEditorPlugin : public VelaWidgetDescriptor
{
    Q_OBJECT
public:
    explicit QCurveEditorPlugin(QObject *parent = nullptr);
};

class QVelaPushButtonPlugin : public VelaWidgetDescriptor
{
    Q_OBJECT
public:
    explicit QVelaPushButtonPlugin(QObject *parent = nullptr);
};

class QGroupWidgetPlugin : public VelaWidgetDescriptor
{
    Q_OBJECT
public:
    explicit QGroupWidgetPlugin(QObject *parent = nullptr);
};

#endif // VELADESCRIPTORS_H
