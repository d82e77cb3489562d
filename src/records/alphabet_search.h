// The buttons that lead to the people of two letters.
#pragma once

#include <QString>

inline constexpr int kAlphabetButtons = 13;

// What a button, counted from 0, asks of the people in order of name. The star is an ordinary
// character that comes before the letters: found is the first name greater than the letter with a
// star behind it, and a name that is the letter alone is less.
QString alphabetCriteria(int button);
