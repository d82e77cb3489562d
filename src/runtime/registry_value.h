// A value of the Windows registry, as plain data.
#pragma once

#include <QByteArray>

struct RegistryValue {
    quint32 type;     // by the numbers of Windows: 1 is a text, 4 a number of 32 bits
    QByteArray data;  // as it is kept: a text in the system's code page, a number from its low byte
};
