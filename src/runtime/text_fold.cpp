// The folding of text_fold.h, by Unicode's rules as Qt has them.
#include "runtime/text_fold.h"

#include <QChar>
#include <QList>
#include <algorithm>

namespace {

bool isMark(QChar::Category category) {
    return category == QChar::Mark_NonSpacing || category == QChar::Mark_SpacingCombining ||
           category == QChar::Mark_Enclosing;
}

QString decomposed(const QString& text) {
    return text.normalized(QString::NormalizationForm_D);
}

QString withoutMarks(const QString& decomposedText) {
    QString text;
    text.reserve(decomposedText.size());
    for (const char32_t codePoint : decomposedText.toUcs4()) {
        if (!isMark(QChar::category(codePoint)))
            text += QChar::fromUcs4(codePoint);
    }
    return text;
}

// A letter whose capital is written as several letters becomes these.
QString spelledOut(const QString& caseFolded) {
    return caseFolded.toUpper().toCaseFolded();
}

}  // namespace

QString folded(const QString& text) {
    return spelledOut(withoutMarks(accented(text)));
}

QString accented(const QString& text) {
    return decomposed(decomposed(text).toCaseFolded());
}

std::array<Fold, 0x10000> Fold::folds_;

void Fold::make(QChar character) {
    const QString letters = character.isSurrogate() ? QString(character) : folded(character);
    Q_ASSERT(letters.size() <= static_cast<qsizetype>(letters_.size()));
    std::transform(letters.begin(), letters.end(), letters_.begin(),
                   [](QChar letter) { return letter.unicode(); });
    length_ = static_cast<std::uint8_t>(letters.size());
    isMade_ = true;
}
