// The words that a rich text document is made of.
#pragma once

#include <QStringView>
#include <optional>

#include "cycles/integers.h"

struct RtfToken {
    enum class Kind {
        GroupStart,
        GroupEnd,
        Word,    // a control word: its name, and its number where it has one
        Symbol,  // a control symbol: the character behind the backslash
        Byte,    // \'hh: the number of a character of a code page
        Text,    // characters as they stand, without line ends
        Binary,  // what \bin leaves out of the text
        End,
    };

    Kind kind;
    QStringView text = {};
    std::optional<Long> number = {};
};

// Takes a document apart, from its beginning to its end, whatever characters it has. The texts of
// the tokens are views into it.
class RtfTokens {
  public:
    explicit RtfTokens(QStringView document) : rest_(document) {}

    // The next one; End from the end on.
    RtfToken nextToken();

  private:
    RtfToken control();
    RtfToken word();
    RtfToken text();
    std::optional<Long> wordNumber();
    QStringView cut(qsizetype length);

    QStringView rest_;
};
