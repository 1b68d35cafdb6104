#ifndef MATERIALRECORDS_H
#define MATERIALRECORDS_H

#include "LuDynamicWidgetRecords.h"

#include <QString>
#include <QVector>

class GalleryContext;
class QNumericalWidgetBase;

// The inputs of the gallery's sample material, as a host keeps them: one variable record and one
// description record per input, and the panel section the input belongs to.
struct MaterialInput
{
    QString section;
    Lu::CDynamicWidgetVariableBase var;
    Lu::CDynamicWidgetDescBase desc;
};

namespace MaterialRecords {

// Every input of the sample material, covering every kind of numerical widget.
const QVector<MaterialInput> &Inputs();

// Makes the widget a host makes for the input (chosen by its behaviour type), initialises it
// from the records and writes every ValueChanged / EditFinished / click to the event log.
QNumericalWidgetBase *CreateWidget(const MaterialInput &input, GalleryContext &context);

} // namespace MaterialRecords

#endif // MATERIALRECORDS_H
