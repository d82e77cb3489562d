// What texts are compared by: without regard to case, first without accents, then with them.
#pragma once

#include <QString>
#include <array>
#include <cstdint>

// The text in one case and without accents, the letters that stand for several spelled out: ß
// becomes ss.
QString folded(const QString& text);

// The text in one case, with accents, each behind its letter.
QString accented(const QString& text);

// The letters that one character of the first plane is folded into, as in folded(); none for an
// accent. Half a character is left as it is. Made when it is first asked for.
class Fold {
  public:
    static const Fold& of(char16_t character) {
        Fold& fold = folds_[character];
        if (!fold.isMade_)
            fold.make(character);
        return fold;
    }

    const char16_t* begin() const { return letters_.begin(); }
    const char16_t* end() const { return letters_.begin() + length_; }

  private:
    void make(QChar character);

    // A place for every character; the system gives memory to those that are used.
    static std::array<Fold, 0x10000> folds_;

    std::array<char16_t, 4> letters_;
    std::uint8_t length_;
    bool isMade_;
};
