#ifndef VELAWIDGETCATALOG_H
#define VELAWIDGETCATALOG_H

#include <QString>
#include <QVector>

#include <functional>

class QWidget;

// Every widget class of the library with a way to make one, as a host or Designer would: the
// collection's descriptors for the Designer widgets, plain construction for the host-only ones.
// Used by the soak run and the fuzzers.
namespace VelaCatalog {

struct Entry
{
    QString name;
    std::function<QWidget *()> create;
};

const QVector<Entry> &Widgets();

} // namespace VelaCatalog

#endif // VELAWIDGETCATALOG_H
