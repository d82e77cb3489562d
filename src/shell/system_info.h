// The system information tool of Windows: where the registry says it is, and its start.
#pragma once

#include <QString>

#include "cycles/integers.h"

namespace modCycles {

// Reads a value of the registry: KeyRoot is the number of the root's handle, KeyName the path of
// the key below it, SubKeyRef the name of the value. Returns whether it was read. KeyVal is then
// the text, or the number in decimal digits; a value of another kind leaves it unchanged. Otherwise
// KeyVal is "".
//
// One zero character at the end of what is read is dropped. A number is made of the hexadecimal
// digits of its bytes, from the last byte to the first, with no zero before a single digit: the
// bytes 0x34 0x12 give 0x1234, but 0x05 0x01 give 0x15. Raises 13 (Type mismatch) for a number
// without bytes, and 6 (Overflow) for one beyond 32 bits.
bool GetKeyValue(Long KeyRoot, const QString& KeyName, const QString& SubKeyRef, QString& KeyVal);

// Starts the tool, or says that it is unavailable; any run-time error on the way ends in that box.
void StartSysInfo();

}  // namespace modCycles
