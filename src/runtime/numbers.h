// Numbers rounded for display, and as text.
#pragma once

#include <QString>

#include "cycles/integers.h"

// The nearest whole number, half to even: 2.5 gives 2, 3.5 gives 4. Raises 6 (Overflow) outside
// 32 bits.
Long Round(double value);

// The same; raises 6 outside 16 bits.
Integer RoundToInteger(double value);

// A whole number as text: decimal digits with no separators, and never "-0".
QString numberText(Long value);

// The whole number that a text is in decimal digits. Raises 13 for any other text, and for a number
// outside 32 bits.
Long wholeNumber(const QString& digits);

// A value of per cent for display: rounded, with the sign "%" behind it.
QString percentText(double percent);
