// The full name of an old database, taken apart.
#pragma once

#include <QString>

// The last name stands before the first comma, or else behind the first blank; the first name is on
// the other side. A name with neither is a last name. The name is not trimmed before it is split,
// the parts are: so a name that starts with a blank has no first name.
QString ParseLastName(const QString& name);
QString ParseFirstName(const QString& name);
