// What a window calls the person whom it is about.
#pragma once

#include <QString>

#include "cycles/date.h"

// The full name with the star sign of the birth date behind it: "Anna Smith (Libra)".
QString personTitle(const QString& fullName, Date birthdate);
