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

// Some widgets open a modal dialog when clicked (the colour buttons). Runs that click every widget
// call this once after creating the application: every modal dialog that opens is then rejected
// from the event loop it runs, so that no click waits for a user.
void RejectModalDialogs();

} // namespace VelaCatalog

#endif // VELAWIDGETCATALOG_H
