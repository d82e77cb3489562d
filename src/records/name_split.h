// A typed full name, taken apart and put together.
#pragma once

#include <QString>

struct SplitName {
    QString first;
    QString last;

    friend bool operator==(const SplitName&, const SplitName&) = default;
};

// The first word is the first name, and everything behind it, with its inner blanks, the last name.
// A single word is a last name.
SplitName splitName(const QString& typed);

// The full name, first name first.
QString joinedName(const SplitName& name);
