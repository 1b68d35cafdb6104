#include "VelaDescriptors.h"

// Separators of the one-line form documents.
#define VELA_SEP25 "                         "
#define VELA_SEP26 "                          "

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

QList<QDesignerCustomWidgetInterface *> CreateVelaDescriptors(QObject *parent)
{
    QList<QDesignerCustomWidgetInterface *> descriptors;
    descriptors.append(new QTransToolBtnPlugin(parent));
    descriptors.append(new QVelaContainerPlugin(parent));
    descriptors.append(new QMouseSpinBoxPlugin(parent));
    descriptors.append(new QKdPickContainerPlugin(parent));
    descriptors.append(new QDragDropListWidgetPlugin(parent));
    descriptors.append(new QDragDropTableWidgetPlugin(parent));
    descriptors.append(new QHoverToolBtnPlugin(parent));
    descriptors.append(new QKdFKModifyTableManagerPlugin(parent));
    descriptors.append(new QKdFKTemplateTableManagerPlugin(parent));
    descriptors.append(new QLineEditWithClearPlugin(parent));
    descriptors.append(new QKdPlayWidgetPlugin(parent));
    descriptors.append(new QStartEndIndicatorWidgetPlugin(parent));
    descriptors.append(new QClickableLabelPlugin(parent));
    descriptors.append(new QKdCurveWidgetPlugin(parent));
    descriptors.append(new QItemLabelPlugin(parent));
    descriptors.append(new QColorButtonPlugin(parent));
    descriptors.append(new QColorButtonPlugin2(parent));
    descriptors.append(new QComboSpinBoxPlugin(parent));
    descriptors.append(new QComboDoubleSpinBoxPlugin(parent));
    descriptors.append(new QComboNonlinearDoubleSpinBoxPlugin(parent));
    descriptors.append(new QComboBoxExPlugin(parent));
    descriptors.append(new QSpinBoxExPlugin(parent));
    descriptors.append(new QDoubleSpinBoxExPlugin(parent));
    descriptors.append(new QSliderExPlugin(parent));
    descriptors.append(new QVisemeButtonPlugin(parent));
    descriptors.append(new QVisemeCurveWidgetLitePlugin(parent));
    descriptors.append(new QDiphoneListWidgetPlugin(parent));
    descriptors.append(new QVisemeListWidgetPlugin(parent));
    descriptors.append(new QCurveEditorPlugin(parent));
    descriptors.append(new QVelaPushButtonPlugin(parent));
    descriptors.append(new QGroupWidgetPlugin(parent));
    return descriptors;
}
