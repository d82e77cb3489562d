// The tables as they are read and looked up.
#include "rtf/rtf_tables.h"

#include <algorithm>

void RtfTables::beginFont(Long number) {
    font_ = number;
    fonts_.remove(number);
}

void RtfTables::addFontName(QStringView text) {
    if (!font_)
        return;
    const qsizetype end = text.indexOf(u';');
    fonts_[*font_] += end < 0 ? text : text.first(end);
    if (end >= 0)
        font_.reset();
}

void RtfTables::setPart(Long value, int shift) {
    constexpr Long kMost = 255;
    const Long part = std::clamp(value, Long{0}, kMost) << shift;
    colour_ = (colour_.value_or(0) & ~(kMost << shift)) | part;
}

void RtfTables::addColourText(QStringView text) {
    for (qsizetype ends = text.count(u';'); ends > 0; --ends)
        colours_.push_back(std::exchange(colour_, std::nullopt));
}

RichFormat RtfTables::format(const RtfCharacters& characters) const {
    const auto colour = static_cast<std::size_t>(characters.colour);
    return {.font = fonts_.value(characters.font.value_or(defaultFont_)),
            .points = characters.halfPoints / 2.0,
            .isBold = characters.isBold,
            .isItalic = characters.isItalic,
            .isUnderlined = characters.isUnderlined,
            .isStruckOut = characters.isStruckOut,
            .colour = colour < colours_.size() ? colours_[colour] : std::nullopt};
}
