// What must hold for every form, whoever drew it. Each rule answers with its objections, in words
// that name the control; a form that keeps the rule gets none. The form must be shown.
#pragma once

#include <QWidget>
#include <string>
#include <vector>

using Objections = std::vector<std::string>;

// Tab goes to the right or down, never back, until it starts again.
Objections objectionsToTabOrder(const QWidget& form);

// Whoever cannot see a control is told what it is: by its caption, by the label whose buddy it is,
// or by its accessible name.
Objections objectionsToNames(const QWidget& form);

// No two captions that are shown together share the letter that Alt goes to, but for the letters
// named. (Entries of a menu may: there the letter goes from one to the next.)
Objections objectionsToMnemonics(const QWidget& form, const std::string& sharedLetters = {});

// The form fits the smallest screen that Ondara is made for.
Objections objectionsToSize(const QWidget& form);
