// The value of a field as a control shows it, and what is typed as a value.
#pragma once

#include <QString>
#include <optional>

#include "cycles/date.h"
#include "store/value.h"

// A text box and a label: Null is no text, and a number its shortest digits.
QString shownText(const Value& value);

// A check box: a number that is not 0.
bool shownCheck(const Value& value);

// A date field: none for Null, a text, and a date that no date control can hold.
std::optional<Date> shownDate(const Value& value);

// What a text box holds: no text is Null, so that the store sees a field without a value.
Value enteredText(const QString& text);
