#include "VelaDescriptors.h"

// A widget joins the collection as soon as its header is part of the build.

// Separators of the one-line form documents.
#define VELA_SEP25 "                         "
#define VELA_SEP26 "                          "

#if __has_include("QTransToolBtn.h")
#include "QTransToolBtn.h"
static const VelaWidgetDescriptor::Row kQTransToolBtnPluginRow = {
    "QTransToolBtn", "QTransToolBtn.h", false,
    "<widget class=\"QTransToolBtn\" name=\"QTransToolBtn\">\n"
    " <property name=\"geometry\">\n"
    "  <rect>\n"
    "   <x>0</x>\n"
    "   <y>0</y>\n"
    "   <width>100</width>\n"
    "   <height>100</height>\n"
    "  </rect>\n"
    " </property>\n"
    "</widget>\n",
    [](QWidget *parent) -> QWidget * { return new QTransToolBtn(parent); }
};
QTransToolBtnPlugin::QTransToolBtnPlugin(QObject *parent)
    : VelaWidgetDescriptor(kQTransToolBtnPluginRow, parent)
{ }

#endif

#if __has_include("QVelaContainer.h")
#include "QVelaContainer.h"
static const VelaWidgetDescriptor::Row kQVelaContainerPluginRow = {
    "QVelaContainer", "QVelaContainer.h", true,
    "<widget class=\"QVelaContainer\" name=\"QVelaContainer\">\n"
    " <property name=\"geometry\">\n"
    "  <rect>\n"
    "   <x>0</x>\n"
    "   <y>0</y>\n"
    "   <width>100</width>\n"
    "   <height>100</height>\n"
    "  </rect>\n"
    " </property>\n"
    "</widget>\n",
    [](QWidget *parent) -> QWidget * { return new QVelaContainer(parent); }
};
QVelaContainerPlugin::QVelaContainerPlugin(QObject *parent)
    : VelaWidgetDescriptor(kQVelaContainerPluginRow, parent)
{ }

#endif

#if __has_include("QMouseSpinBox.h")
#include "QMouseSpinBox.h"
static const VelaWidgetDescriptor::Row kQMouseSpinBoxPluginRow = {
    "QMouseSpinBox", "QMouseSpinBox.h", false,
    "<widget class=\"QMouseSpinBox\" name=\"QMouseSpinBox\">\n"
    " <property name=\"geometry\">\n"
    "  <rect>\n"
    "   <x>0</x>\n"
    "   <y>0</y>\n"
    "   <width>100</width>\n"
    "   <height>100</height>\n"
    "  </rect>\n"
    " </property>\n"
    "</widget>\n",
    [](QWidget *parent) -> QWidget * { return new QMouseSpinBox(parent); }
};
QMouseSpinBoxPlugin::QMouseSpinBoxPlugin(QObject *parent)
    : VelaWidgetDescriptor(kQMouseSpinBoxPluginRow, parent)
{ }

#endif

#if __has_include("QKdPickContainer.h")
#include "QKdPickContainer.h"
static const VelaWidgetDescriptor::Row kQKdPickContainerPluginRow = {
    "QKdPickContainer", "QKdPickContainer.h", true,
    "<widget class=\"QKdPickContainer\" name=\"QKdPickContainer\">\n"
    " <property name=\"geometry\">\n"
    "  <rect>\n"
    "   <x>0</x>\n"
    "   <y>0</y>\n"
    "   <width>100</width>\n"
    "   <height>100</height>\n"
    "  </rect>\n"
    " </property>\n"
    "</widget>\n",
    [](QWidget *parent) -> QWidget * { return new QKdPickContainer(parent); }
};
QKdPickContainerPlugin::QKdPickContainerPlugin(QObject *parent)
    : VelaWidgetDescriptor(kQKdPickContainerPluginRow, parent)
{ }

#endif

#if __has_include("QDragDropListWidget.h")
#include "QDragDropListWidget.h"
static const VelaWidgetDescriptor::Row kQDragDropListWidgetPluginRow = {
    "QDragDropListWidget", "QDragDropListWidget.h", false,
    "<widget class=\"QDragDropListWidget\" name=\"QDragDropListWidget\">\n"
    " <property name=\"geometry\">\n"
    "  <rect>\n"
    "   <x>0</x>\n"
    "   <y>0</y>\n"
    "   <width>100</width>\n"
    "   <height>100</height>\n"
    "  </rect>\n"
    " </property>\n"
    "</widget>\n",
    [](QWidget *parent) -> QWidget * { return new QDragDropListWidget(parent); }
};
QDragDropListWidgetPlugin::QDragDropListWidgetPlugin(QObject *parent)
    : VelaWidgetDescriptor(kQDragDropListWidgetPluginRow, parent)
{ }

#endif

#if __has_include("QDragDropTableWidget.h")
#include "QDragDropTableWidget.h"
static const VelaWidgetDescriptor::Row kQDragDropTableWidgetPluginRow = {
    "QDragDropTableWidget", "QDragDropTableWidget.h", false,
    "<widget class=\"QDragDropTableWidget\" name=\"QDragDropTableWidget\">\n"
    " <property name=\"geometry\">\n"
    "  <rect>\n"
    "   <x>0</x>\n"
    "   <y>0</y>\n"
    "   <width>100</width>\n"
    "   <height>100</height>\n"
    "  </rect>\n"
    " </property>\n"
    "</widget>\n",
    [](QWidget *parent) -> QWidget * { return new QDragDropTableWidget(parent); }
};
QDragDropTableWidgetPlugin::QDragDropTableWidgetPlugin(QObject *parent)
    : VelaWidgetDescriptor(kQDragDropTableWidgetPluginRow, parent)
{ }

#endif

#if __has_include("QHoverToolBtn.h")
#include "QHoverToolBtn.h"
static const VelaWidgetDescriptor::Row kQHoverToolBtnPluginRow = {
    "QHoverToolBtn", "QHoverToolBtn.h", false,
    "<widget class=\"QHoverToolBtn\" name=\"QHoverToolBtn\">\n"
    " <property name=\"geometry\">\n"
    "  <rect>\n"
    "   <x>0</x>\n"
    "   <y>0</y>\n"
    "   <width>100</width>\n"
    "   <height>100</height>\n"
    "  </rect>\n"
    " </property>\n"
    "</widget>\n",
    [](QWidget *parent) -> QWidget * { return new QHoverToolBtn(parent); }
};
QHoverToolBtnPlugin::QHoverToolBtnPlugin(QObject *parent)
    : VelaWidgetDescriptor(kQHoverToolBtnPluginRow, parent)
{ }

#endif

#if __has_include("QKdFKModifyTableManager.h")
#include "QKdFKModifyTableManager.h"
static const VelaWidgetDescriptor::Row kQKdFKModifyTableManagerPluginRow = {
    "QKdFKModifyTableManager", "QKdFKModifyTableManager.h", true,
    "<widget class=\"QKdFKModifyTableManager\" name=\"QKdFKModifyTableManager\">\n"
    " <property name=\"geometry\">\n"
    "  <rect>\n"
    "   <x>0</x>\n"
    "   <y>0</y>\n"
    "   <width>100</width>\n"
    "   <height>100</height>\n"
    "  </rect>\n"
    " </property>\n"
    "</widget>\n",
    [](QWidget *parent) -> QWidget * { return new QKdFKModifyTableManager(parent); }
};
QKdFKModifyTableManagerPlugin::QKdFKModifyTableManagerPlugin(QObject *parent)
    : VelaWidgetDescriptor(kQKdFKModifyTableManagerPluginRow, parent)
{ }

#endif

#if __has_include("QKdFKTemplateTableManager.h")
#include "QKdFKTemplateTableManager.h"
static const VelaWidgetDescriptor::Row kQKdFKTemplateTableManagerPluginRow = {
    "QKdFKTemplateTableManager", "QKdFKTemplateTableManager.h", true,
    "<widget class=\"QKdFKTemplateTableManager\" name=\"QKdFKTemplateTableManager\">\n"
    " <property name=\"geometry\">\n"
    "  <rect>\n"
    "   <x>0</x>\n"
    "   <y>0</y>\n"
    "   <width>100</width>\n"
    "   <height>100</height>\n"
    "  </rect>\n"
    " </property>\n"
    "</widget>\n",
    [](QWidget *parent) -> QWidget * { return new QKdFKTemplateTableManager(parent); }
};
QKdFKTemplateTableManagerPlugin::QKdFKTemplateTableManagerPlugin(QObject *parent)
    : VelaWidgetDescriptor(kQKdFKTemplateTableManagerPluginRow, parent)
{ }

#endif

#if __has_include("QLineEditWithClear.h")
#include "QLineEditWithClear.h"
static const VelaWidgetDescriptor::Row kQLineEditWithClearPluginRow = {
    "QLineEditWithClear", "QLineEditWithClear.h", false,
    "<widget class=\"QLineEditWithClear\" name=\"QLineEditWithClear\">\n"
    " <property name=\"geometry\">\n"
    "  <rect>\n"
    "   <x>0</x>\n"
    "   <y>0</y>\n"
    "   <width>16</width>\n"
    "   <height>16</height>\n"
    "  </rect>\n"
    " </property>\n"
    "</widget>\n",
    [](QWidget *parent) -> QWidget * { return new QLineEditWithClear(parent); }
};
QLineEditWithClearPlugin::QLineEditWithClearPlugin(QObject *parent)
    : VelaWidgetDescriptor(kQLineEditWithClearPluginRow, parent)
{ }

#endif

#if __has_include("QKdPlayWidget.h")
#include "QKdPlayWidget.h"
static const VelaWidgetDescriptor::Row kQKdPlayWidgetPluginRow = {
    "QKdPlayWidget", "QKdPlayWidget.h", true,
    "<widget class=\"QKdPlayWidget\" name=\"QKdPlayWidget\">\n"
    " <property name=\"geometry\">\n"
    "  <rect>\n"
    "   <x>0</x>\n"
    "   <y>0</y>\n"
    "   <width>100</width>\n"
    "   <height>100</height>\n"
    "  </rect>\n"
    " </property>\n"
    "</widget>\n",
    [](QWidget *parent) -> QWidget * { return new QKdPlayWidget(parent); }
};
QKdPlayWidgetPlugin::QKdPlayWidgetPlugin(QObject *parent)
    : VelaWidgetDescriptor(kQKdPlayWidgetPluginRow, parent)
{ }

#endif

#if __has_include("QStartEndIndicatorWidget.h")
#include "QStartEndIndicatorWidget.h"
static const VelaWidgetDescriptor::Row kQStartEndIndicatorWidgetPluginRow = {
    "QStartEndIndicatorWidget", "QStartEndIndicatorWidget.h", true,
    "<widget class=\"QStartEndIndicatorWidget\" name=\"QStartEndIndicatorWidget\">\n"
    " <property name=\"geometry\">\n"
    "  <rect>\n"
    "   <x>0</x>\n"
    "   <y>0</y>\n"
    "   <width>100</width>\n"
    "   <height>100</height>\n"
    "  </rect>\n"
    " </property>\n"
    "</widget>\n",
    [](QWidget *parent) -> QWidget * { return new QStartEndIndicatorWidget(parent); }
};
QStartEndIndicatorWidgetPlugin::QStartEndIndicatorWidgetPlugin(QObject *parent)
    : VelaWidgetDescriptor(kQStartEndIndicatorWidgetPluginRow, parent)
{ }

#endif

#if __has_include("QClickableLabel.h")
#include "QClickableLabel.h"
static const VelaWidgetDescriptor::Row kQClickableLabelPluginRow = {
    "QClickableLabel", "QClickableLabel.h", false,
    "<widget class=\"QClickableLabel\" name=\"QClickableLabel\">\n"
    " <property name=\"geometry\">\n"
    "  <rect>\n"
    "   <x>0</x>\n"
    "   <y>0</y>\n"
    "   <width>100</width>\n"
    "   <height>100</height>\n"
    "  </rect>\n"
    " </property>\n"
    "</widget>\n",
    [](QWidget *parent) -> QWidget * { return new QClickableLabel(parent); }
};
QClickableLabelPlugin::QClickableLabelPlugin(QObject *parent)
    : VelaWidgetDescriptor(kQClickableLabelPluginRow, parent)
{ }

#endif

#if __has_include("QKdCurveWidget.h")
#include "QKdCurveWidget.h"
static const VelaWidgetDescriptor::Row kQKdCurveWidgetPluginRow = {
    "QKdCurveWidget", "QKdCurveWidget.h", true,
    "<widget class=\"QKdCurveWidget\" name=\"QKdCurveWidget\">\n"
    " <property name=\"geometry\">\n"
    "  <rect>\n"
    "   <x>0</x>\n"
    "   <y>0</y>\n"
    "   <width>100</width>\n"
    "   <height>100</height>\n"
    "  </rect>\n"
    " </property>\n"
    "</widget>\n",
    [](QWidget *parent) -> QWidget * { return new QKdCurveWidget(parent); }
};
QKdCurveWidgetPlugin::QKdCurveWidgetPlugin(QObject *parent)
    : VelaWidgetDescriptor(kQKdCurveWidgetPluginRow, parent)
{ }

#endif

#if __has_include("QItemLabel.h")
#include "QItemLabel.h"
static const VelaWidgetDescriptor::Row kQItemLabelPluginRow = {
    "QItemLabel", "QItemLabel.h", false,
    "<widget class=\"QItemLabel\" name=\"qItemLabel\">\n"
    " <property name=\"geometry\">\n"
    "  <rect>\n"
    "   <x>0</x>\n"
    "   <y>0</y>\n"
    "   <width>100</width>\n"
    "   <height>100</height>\n"
    "  </rect>\n"
    " </property>\n"
    "</widget>\n",
    [](QWidget *parent) -> QWidget * { return new QItemLabel(parent); }
};
QItemLabelPlugin::QItemLabelPlugin(QObject *parent)
    : VelaWidgetDescriptor(kQItemLabelPluginRow, parent)
{ }

#endif

#if __has_include("QColorButton.h")
#include "QColorButton.h"
static const VelaWidgetDescriptor::Row kQColorButtonPluginRow = {
    "QColorButton", "QColorButton.h", false,
    "<widget class=\"QColorButton\" name=\"qColorButton\">\n"
    " <property name=\"geometry\">\n"
    "  <rect>\n"
    "   <x>0</x>\n"
    "   <y>0</y>\n"
    "   <width>75</width>\n"
    "   <height>23</height>\n"
    "  </rect>\n"
    " </property>\n"
    "</widget>\n",
    [](QWidget *parent) -> QWidget * { return new QColorButton(parent); }
};
QColorButtonPlugin::QColorButtonPlugin(QObject *parent)
    : VelaWidgetDescriptor(kQColorButtonPluginRow, parent)
{ }

#endif

#if __has_include("QColorButton2.h")
#include "QColorButton2.h"
static const VelaWidgetDescriptor::Row kQColorButtonPlugin2Row = {
    "QColorButton2", "QColorButton2.h", false,
    "<widget class=\"QColorButton2\" name=\"qColorButton2\">\n"
    " <property name=\"geometry\">\n"
    "  <rect>\n"
    "   <x>0</x>\n"
    "   <y>0</y>\n"
    "   <width>75</width>\n"
    "   <height>23</height>\n"
    "  </rect>\n"
    " </property>\n"
    "</widget>\n",
    [](QWidget *parent) -> QWidget * { return new QColorButton2(parent); }
};
QColorButtonPlugin2::QColorButtonPlugin2(QObject *parent)
    : VelaWidgetDescriptor(kQColorButtonPlugin2Row, parent)
{ }

#endif

#if __has_include("QComboSpinBox.h")
#include "QComboSpinBox.h"
static const VelaWidgetDescriptor::Row kQComboSpinBoxPluginRow = {
    "QComboSpinBox", "QComboSpinBox.h", true,
    VELA_SEP25 "<ui language=\"c++\">" VELA_SEP25
               "<widget class=\"QComboSpinBox\" name=\"combospinbox\">" VELA_SEP25
               "</widget>" VELA_SEP25 "<customwidgets>" VELA_SEP25 "<customwidget>" VELA_SEP25
               "<class>QComboSpinBox</class>" VELA_SEP25 "<extends>QWidget</extends>" VELA_SEP25
               "<addpagemethod>addPage</addpagemethod>" VELA_SEP25 "</customwidget>" VELA_SEP25
               "</customwidgets>" VELA_SEP25 "</ui>",
    [](QWidget *parent) -> QWidget * { return new QComboSpinBox(parent); }
};
QComboSpinBoxPlugin::QComboSpinBoxPlugin(QObject *parent)
    : VelaWidgetDescriptor(kQComboSpinBoxPluginRow, parent)
{ }

#endif

#if __has_include("QComboDoubleSpinBox.h")
#include "QComboDoubleSpinBox.h"
static const VelaWidgetDescriptor::Row kQComboDoubleSpinBoxPluginRow = {
    "QComboDoubleSpinBox", "QComboDoubleSpinBox.h", false,
    VELA_SEP25 "<ui language=\"c++\">" VELA_SEP25
               "<widget class=\"QComboDoubleSpinBox\" name=\"combodoublespinbox\">" VELA_SEP25
               "</widget>" VELA_SEP25 "<customwidgets>" VELA_SEP25 "<customwidget>" VELA_SEP25
               "<class>QComboDoubleSpinBox</class>" VELA_SEP25
               "<extends>QWidget</extends>" VELA_SEP25
               "<addpagemethod>addPage</addpagemethod>" VELA_SEP25 "</customwidget>" VELA_SEP25
               "</customwidgets>" VELA_SEP25 "</ui>",
    [](QWidget *parent) -> QWidget * { return new QComboDoubleSpinBox(parent); }
};
QComboDoubleSpinBoxPlugin::QComboDoubleSpinBoxPlugin(QObject *parent)
    : VelaWidgetDescriptor(kQComboDoubleSpinBoxPluginRow, parent)
{ }

#endif

#if __has_include("QComboNonlinearDoubleSpinBox.h")
#include "QComboNonlinearDoubleSpinBox.h"
static const VelaWidgetDescriptor::Row kQComboNonlinearDoubleSpinBoxPluginRow = {
    "QComboNonlinearDoubleSpinBox", "QComboNonlinearDoubleSpinBox.h", false,
    VELA_SEP25 "<ui language=\"c++\">" VELA_SEP25 "<widget class=\"QComboNonlinearDoubleSpinBox\" "
               "name=\"combononlineardoublespinbox\">" VELA_SEP25 "</widget>" VELA_SEP25
               "<customwidgets>" VELA_SEP25 "<customwidget>" VELA_SEP25
               "<class>QComboNonlinearDoubleSpinBox</class>" VELA_SEP25
               "<extends>QWidget</extends>" VELA_SEP25
               "<addpagemethod>addPage</addpagemethod>" VELA_SEP25 "</customwidget>" VELA_SEP25
               "</customwidgets>" VELA_SEP25 "</ui>",
    [](QWidget *parent) -> QWidget * { return new QComboNonlinearDoubleSpinBox(parent); }
};
QComboNonlinearDoubleSpinBoxPlugin::QComboNonlinearDoubleSpinBoxPlugin(QObject *parent)
    : VelaWidgetDescriptor(kQComboNonlinearDoubleSpinBoxPluginRow, parent)
{ }

#endif

#if __has_include("QComboBoxEx.h")
#include "QComboBoxEx.h"
static const VelaWidgetDescriptor::Row kQComboBoxExPluginRow = {
    "QComboBoxEx", "QComboBoxEx.h", false,
    "<ui language=\"c++\">" VELA_SEP26
    "<widget class=\"QComboBoxEx\" name=\"qtComboBoxEx\">" VELA_SEP26
    "<property name=\"geometry\">" VELA_SEP26 "<rect>" VELA_SEP26 "<x>0</x>" VELA_SEP26
    "<y>0</y>" VELA_SEP26 "<width>69</width>" VELA_SEP26 "<height>22</height>" VELA_SEP26
    "</rect>" VELA_SEP26 "</property>" VELA_SEP26 "<property name=\"focusPolicy\">" VELA_SEP26
    "<enum>Qt::StrongFocus</enum>" VELA_SEP26 "</property>" VELA_SEP26 "</widget>" VELA_SEP26
    "<customwidgets>" VELA_SEP26 "<customwidget>" VELA_SEP26 "<class>QComboBoxEx</class>" VELA_SEP26
    "<extends>QComboBox</extends>" VELA_SEP26 "</customwidget>" VELA_SEP26
    "</customwidgets>" VELA_SEP26 "</ui>",
    [](QWidget *parent) -> QWidget * { return new QComboBoxEx(parent); }
};
QComboBoxExPlugin::QComboBoxExPlugin(QObject *parent)
    : VelaWidgetDescriptor(kQComboBoxExPluginRow, parent)
{ }

#endif

#if __has_include("QSpinBoxEx.h")
#include "QSpinBoxEx.h"
static const VelaWidgetDescriptor::Row kQSpinBoxExPluginRow = {
    "QSpinBoxEx", "QSpinBoxEx.h", false,
    "<ui language=\"c++\">" VELA_SEP26
    "<widget class=\"QSpinBoxEx\" name=\"qtSpinBoxEx\">" VELA_SEP26
    "<property name=\"focusPolicy\">" VELA_SEP26 "<enum>Qt::StrongFocus</enum>" VELA_SEP26
    "</property>" VELA_SEP26 "</widget>" VELA_SEP26 "<customwidgets>" VELA_SEP26
    "<customwidget>" VELA_SEP26 "<class>QSpinBoxEx</class>" VELA_SEP26
    "<extends>QSpinBox</extends>" VELA_SEP26 "</customwidget>" VELA_SEP26
    "</customwidgets>" VELA_SEP26 "</ui>",
    [](QWidget *parent) -> QWidget * { return new QSpinBoxEx(parent); }
};
QSpinBoxExPlugin::QSpinBoxExPlugin(QObject *parent)
    : VelaWidgetDescriptor(kQSpinBoxExPluginRow, parent)
{ }

#endif

#if __has_include("QDoubleSpinBoxEx.h")
#include "QDoubleSpinBoxEx.h"
static const VelaWidgetDescriptor::Row kQDoubleSpinBoxExPluginRow = {
    "QDoubleSpinBoxEx", "QDoubleSpinBoxEx.h", false,
    "<ui language=\"c++\">" VELA_SEP26
    "<widget class=\"QDoubleSpinBoxEx\" name=\"qtDoubleSpinBoxEx\">" VELA_SEP26
    "<property name=\"focusPolicy\">" VELA_SEP26 "<enum>Qt::StrongFocus</enum>" VELA_SEP26
    "</property>" VELA_SEP26 "</widget>" VELA_SEP26 "<customwidgets>" VELA_SEP26
    "<customwidget>" VELA_SEP26 "<class>QDoubleSpinBoxEx</class>" VELA_SEP26
    "<extends>QDoubleSpinBox</extends>" VELA_SEP26 "</customwidget>" VELA_SEP26
    "</customwidgets>" VELA_SEP26 "</ui>",
    [](QWidget *parent) -> QWidget * { return new QDoubleSpinBoxEx(parent); }
};
QDoubleSpinBoxExPlugin::QDoubleSpinBoxExPlugin(QObject *parent)
    : VelaWidgetDescriptor(kQDoubleSpinBoxExPluginRow, parent)
{ }

#endif

#if __has_include("QSliderEx.h")
#include "QSliderEx.h"
static const VelaWidgetDescriptor::Row kQSliderExPluginRow = {
    "QSliderEx", "QSliderEx.h", false,
    "<ui language=\"c++\">" VELA_SEP26 "<widget class=\"QSliderEx\" name=\"qtSliderEx\">" VELA_SEP26
    "<property name=\"geometry\">" VELA_SEP26 "<rect>" VELA_SEP26 "<x>0</x>" VELA_SEP26
    "<y>0</y>" VELA_SEP26 "<width>160</width>" VELA_SEP26 "<height>19</height>" VELA_SEP26
    "</rect>" VELA_SEP26 "</property>" VELA_SEP26 "<property name=\"orientation\">" VELA_SEP26
    "<enum>Qt::Horizontal</enum>" VELA_SEP26 "</property>" VELA_SEP26
    "<property name=\"focusPolicy\">" VELA_SEP26 "<enum>Qt::StrongFocus</enum>" VELA_SEP26
    "</property>" VELA_SEP26 "</widget>" VELA_SEP26 "<customwidgets>" VELA_SEP26
    "<customwidget>" VELA_SEP26 "<class>QSliderEx</class>" VELA_SEP26
    "<extends>QSlider</extends>" VELA_SEP26 "</customwidget>" VELA_SEP26
    "</customwidgets>" VELA_SEP26 "</ui>",
    [](QWidget *parent) -> QWidget * { return new QSliderEx(parent); }
};
QSliderExPlugin::QSliderExPlugin(QObject *parent)
    : VelaWidgetDescriptor(kQSliderExPluginRow, parent)
{ }

#endif

#if __has_include("QVisemeButton.h")
#include "QVisemeButton.h"
static const VelaWidgetDescriptor::Row kQVisemeButtonPluginRow = {
    "QVisemeButton", "QVisemeButton.h", false,
    "<widget class=\"QVisemeButton\" name=\"QVisemeButton\">\n"
    " <property name=\"geometry\">\n"
    "  <rect>\n"
    "   <x>0</x>\n"
    "   <y>0</y>\n"
    "   <width>100</width>\n"
    "   <height>100</height>\n"
    "  </rect>\n"
    " </property>\n"
    "</widget>\n",
    [](QWidget *parent) -> QWidget * { return new QVisemeButton(parent); }
};
QVisemeButtonPlugin::QVisemeButtonPlugin(QObject *parent)
    : VelaWidgetDescriptor(kQVisemeButtonPluginRow, parent)
{ }

#endif

#if __has_include("QVisemeCurveWidgetLite.h")
#include "QVisemeCurveWidgetLite.h"
static const VelaWidgetDescriptor::Row kQVisemeCurveWidgetLitePluginRow = {
    "QVisemeCurveWidgetLite", "QVisemeCurveWidgetLite.h", false,
    "<widget class=\"QVisemeCurveWidgetLite\" name=\"QVisemeCurveWidgetLite\">\n"
    " <property name=\"geometry\">\n"
    "  <rect>\n"
    "   <x>0</x>\n"
    "   <y>0</y>\n"
    "   <width>100</width>\n"
    "   <height>100</height>\n"
    "  </rect>\n"
    " </property>\n"
    "</widget>\n",
    [](QWidget *parent) -> QWidget * { return new QVisemeCurveWidgetLite(parent); }
};
QVisemeCurveWidgetLitePlugin::QVisemeCurveWidgetLitePlugin(QObject *parent)
    : VelaWidgetDescriptor(kQVisemeCurveWidgetLitePluginRow, parent)
{ }

#endif

#if __has_include("QDiphoneListWidget.h")
#include "QDiphoneListWidget.h"
static const VelaWidgetDescriptor::Row kQDiphoneListWidgetPluginRow = {
    "QDiphoneListWidget", "QDiphoneListWidget.h", false,
    "<widget class=\"QDiphoneListWidget\" name=\"QDiphoneListWidget\">\n"
    " <property name=\"geometry\">\n"
    "  <rect>\n"
    "   <x>0</x>\n"
    "   <y>0</y>\n"
    "   <width>100</width>\n"
    "   <height>100</height>\n"
    "  </rect>\n"
    " </property>\n"
    "</widget>\n",
    [](QWidget *parent) -> QWidget * { return new QDiphoneListWidget(parent); }
};
QDiphoneListWidgetPlugin::QDiphoneListWidgetPlugin(QObject *parent)
    : VelaWidgetDescriptor(kQDiphoneListWidgetPluginRow, parent)
{ }

#endif

#if __has_include("QVisemeListWidget.h")
#include "QVisemeListWidget.h"
static const VelaWidgetDescriptor::Row kQVisemeListWidgetPluginRow = {
    "QVisemeListWidget", "QVisemeListWidget.h", false,
    "<widget class=\"QVisemeListWidget\" name=\"QVisemeListWidget\">\n"
    " <property name=\"geometry\">\n"
    "  <rect>\n"
    "   <x>0</x>\n"
    "   <y>0</y>\n"
    "   <width>100</width>\n"
    "   <height>100</height>\n"
    "  </rect>\n"
    " </property>\n"
    "</widget>\n",
    [](QWidget *parent) -> QWidget * { return new QVisemeListWidget(parent); }
};
QVisemeListWidgetPlugin::QVisemeListWidgetPlugin(QObject *parent)
    : VelaWidgetDescriptor(kQVisemeListWidgetPluginRow, parent)
{ }

#endif

#if __has_include("QCurveeditor.h")
#include "QCurveeditor.h"
static const VelaWidgetDescriptor::Row kQCurveEditorPluginRow = {
    "QCurveEditor", "QCurveeditor.h", false,
    "<widget class=\"QCurveEditor\" name=\"QCurveEditor\">\n"
    " <property name=\"geometry\">\n"
    "  <rect>\n"
    "   <x>0</x>\n"
    "   <y>0</y>\n"
    "   <width>100</width>\n"
    "   <height>100</height>\n"
    "  </rect>\n"
    " </property>\n"
    "</widget>\n",
    [](QWidget *parent) -> QWidget * { return new QCurveEditor(parent); }
};
QCurveEditorPlugin::QCurveEditorPlugin(QObject *parent)
    : VelaWidgetDescriptor(kQCurveEditorPluginRow, parent)
{ }

#endif

#if __has_include("QVelaPushbutton.h")
#include "QVelaPushbutton.h"
static const VelaWidgetDescriptor::Row kQVelaPushButtonPluginRow = {
    "QVelaPushButton", "QVelaPushbutton.h", false,
    "<widget class=\"QVelaPushButton\" name=\"qVelaPushButton\">\n"
    " <property name=\"geometry\">\n"
    "  <rect>\n"
    "   <x>0</x>\n"
    "   <y>0</y>\n"
    "   <width>100</width>\n"
    "   <height>100</height>\n"
    "  </rect>\n"
    " </property>\n"
    "</widget>\n",
    [](QWidget *parent) -> QWidget * { return new QVelaPushButton(parent); }
};
QVelaPushButtonPlugin::QVelaPushButtonPlugin(QObject *parent)
    : VelaWidgetDescriptor(kQVelaPushButtonPluginRow, parent)
{ }

#endif

#if __has_include("QGroupWidget.h")
#include "QGroupWidget.h"
static const VelaWidgetDescriptor::Row kQGroupWidgetPluginRow = {
    "QGroupWidget", "QGroupWidget.h", false,
    "<widget class=\"QGroupWidget\" name=\"QGroupWidget\">\n"
    " <property name=\"geometry\">\n"
    "  <rect>\n"
    "   <x>0</x>\n"
    "   <y>0</y>\n"
    "   <width>100</width>\n"
    "   <height>100</height>\n"
    "  </rect>\n"
    " </property>\n"
    "</widget>\n",
    [](QWidget *parent) -> QWidget * { return new QGroupWidget(parent, QString(), false); }
};
QGroupWidgetPlugin::QGroupWidgetPlugin(QObject *parent)
    : VelaWidgetDescriptor(kQGroupWidgetPluginRow, parent)
{ }

#endif

QList<QDesignerCustomWidgetInterface *> CreateVelaDescriptors(QObject *parent)
{
    QList<QDesignerCustomWidgetInterface *> descriptors;
#if __has_include("QTransToolBtn.h")
    descriptors.append(new QTransToolBtnPlugin(parent));
#endif
#if __has_include("QVelaContainer.h")
    descriptors.append(new QVelaContainerPlugin(parent));
#endif
#if __has_include("QMouseSpinBox.h")
    descriptors.append(new QMouseSpinBoxPlugin(parent));
#endif
#if __has_include("QKdPickContainer.h")
    descriptors.append(new QKdPickContainerPlugin(parent));
#endif
#if __has_include("QDragDropListWidget.h")
    descriptors.append(new QDragDropListWidgetPlugin(parent));
#endif
#if __has_include("QDragDropTableWidget.h")
    descriptors.append(new QDragDropTableWidgetPlugin(parent));
#endif
#if __has_include("QHoverToolBtn.h")
    descriptors.append(new QHoverToolBtnPlugin(parent));
#endif
#if __has_include("QKdFKModifyTableManager.h")
    descriptors.append(new QKdFKModifyTableManagerPlugin(parent));
#endif
#if __has_include("QKdFKTemplateTableManager.h")
    descriptors.append(new QKdFKTemplateTableManagerPlugin(parent));
#endif
#if __has_include("QLineEditWithClear.h")
    descriptors.append(new QLineEditWithClearPlugin(parent));
#endif
#if __has_include("QKdPlayWidget.h")
    descriptors.append(new QKdPlayWidgetPlugin(parent));
#endif
#if __has_include("QStartEndIndicatorWidget.h")
    descriptors.append(new QStartEndIndicatorWidgetPlugin(parent));
#endif
#if __has_include("QClickableLabel.h")
    descriptors.append(new QClickableLabelPlugin(parent));
#endif
#if __has_include("QKdCurveWidget.h")
    descriptors.append(new QKdCurveWidgetPlugin(parent));
#endif
#if __has_include("QItemLabel.h")
    descriptors.append(new QItemLabelPlugin(parent));
#endif
#if __has_include("QColorButton.h")
    descriptors.append(new QColorButtonPlugin(parent));
#endif
#if __has_include("QColorButton2.h")
    descriptors.append(new QColorButtonPlugin2(parent));
#endif
#if __has_include("QComboSpinBox.h")
    descriptors.append(new QComboSpinBoxPlugin(parent));
#endif
#if __has_include("QComboDoubleSpinBox.h")
    descriptors.append(new QComboDoubleSpinBoxPlugin(parent));
#endif
#if __has_include("QComboNonlinearDoubleSpinBox.h")
    descriptors.append(new QComboNonlinearDoubleSpinBoxPlugin(parent));
#endif
#if __has_include("QComboBoxEx.h")
    descriptors.append(new QComboBoxExPlugin(parent));
#endif
#if __has_include("QSpinBoxEx.h")
    descriptors.append(new QSpinBoxExPlugin(parent));
#endif
#if __has_include("QDoubleSpinBoxEx.h")
    descriptors.append(new QDoubleSpinBoxExPlugin(parent));
#endif
#if __has_include("QSliderEx.h")
    descriptors.append(new QSliderExPlugin(parent));
#endif
#if __has_include("QVisemeButton.h")
    descriptors.append(new QVisemeButtonPlugin(parent));
#endif
#if __has_include("QVisemeCurveWidgetLite.h")
    descriptors.append(new QVisemeCurveWidgetLitePlugin(parent));
#endif
#if __has_include("QDiphoneListWidget.h")
    descriptors.append(new QDiphoneListWidgetPlugin(parent));
#endif
#if __has_include("QVisemeListWidget.h")
    descriptors.append(new QVisemeListWidgetPlugin(parent));
#endif
#if __has_include("QCurveeditor.h")
    descriptors.append(new QCurveEditorPlugin(parent));
#endif
#if __has_include("QVelaPushbutton.h")
    descriptors.append(new QVelaPushButtonPlugin(parent));
#endif
#if __has_include("QGroupWidget.h")
    descriptors.append(new QGroupWidgetPlugin(parent));
#endif
    return descriptors;
}
