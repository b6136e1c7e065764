#ifndef ROOTCALLS_H
#define ROOTCALLS_H

// The seventeen operations of the plug-in's root, as the head unit's
// framework calls them: through CarControlInterface, by name, with
// arguments of the types their signatures take.

#include <QList>
#include <QString>
#include <QVariantList>

class CarControlInterface;

namespace RootCalls {

// An operation: its name and its parameters, one letter each: i int, b bool,
// s string, v variant; a "?" makes the rest optional. onRadarDataChanged,
// which the interface has twice, takes "r": nothing (the slot without
// argument) or one variant.
struct Operation
{
    char const *name;
    char const *parameters;
};

QList<Operation> const &all();
// The operation of that name, or null.
Operation const *find(QString const &name);
// "call NAME ARGUMENT...", for messages.
QString usage(Operation const &operation);

// Calls the operation on root with args converted to its parameters. False
// for an unknown name. The operations themselves return nothing.
bool invoke(CarControlInterface *root, QString const &name, QVariantList const &args);

} // namespace RootCalls

#endif // ROOTCALLS_H
