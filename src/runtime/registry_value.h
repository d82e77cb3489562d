// A value of the Windows registry, as plain data.
#pragma once

#include <QByteArray>

// Windows has more types than these, each with a number.
enum class RegistryType : quint32 { Text = 1, Number = 4 };

struct RegistryValue {
    RegistryType type;
    QByteArray data;  // as it is kept: a text in the system's code page, a number from its low byte
};
