#ifndef VELAEXPORT_H
#define VELAEXPORT_H

#include <QtCore/qglobal.h>

// Marks the classes and functions that the widget library exports. The library itself is built
// with hidden visibility, so only what carries this macro is visible to hosts and to Designer.
#if defined(VELAQTCUSTOMWIDGETS_LIBRARY)
#define VELA_WIDGETS_EXPORT Q_DECL_EXPORT
#else
#define VELA_WIDGETS_EXPORT Q_DECL_IMPORT
#endif

#endif // VELAEXPORT_H
