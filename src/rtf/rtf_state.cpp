// The words of formats.
#include "rtf/rtf_state.h"

#include <QHash>
#include <algorithm>

namespace {

constexpr Long kMostHalfPoints = 3276;
constexpr std::size_t kMostTabs = 64;

using Number = std::optional<Long>;
using Change = void (*)(RtfState&, Number);

// A word without a number turns its format on; 0 turns it off.
template <bool RtfCharacters::*format>
void turn(RtfState& state, Number number) {
    state.characters.*format = number != 0;
}

void turnUnderlineOff(RtfState& state, Number) {
    state.characters.isUnderlined = false;
}

void setFont(RtfState& state, Number number) {
    state.characters.font = number;
}

void setSize(RtfState& state, Number number) {
    state.characters.halfPoints =
        std::clamp(number.value_or(RtfCharacters().halfPoints), Long{1}, kMostHalfPoints);
}

void setColour(RtfState& state, Number number) {
    state.characters.colour = number.value_or(0);
}

void resetCharacters(RtfState& state, Number) {
    state.characters = {};
}

void resetParagraph(RtfState& state, Number) {
    state.paragraph = {};
}

template <RichAlignment alignment>
void align(RtfState& state, Number) {
    state.paragraph.alignment = alignment;
}

template <Long RichParagraphFormat::*length>
void setLength(RtfState& state, Number number) {
    state.paragraph.*length = std::clamp(number.value_or(0), -kLongest, kLongest);
}

void addTab(RtfState& state, Number number) {
    std::vector<Long>& tabs = state.paragraph.tabs;
    const Long place = std::clamp(number.value_or(0), Long{0}, kLongest);
    if (tabs.size() < kMostTabs)
        tabs.insert(std::lower_bound(tabs.begin(), tabs.end(), place), place);
}

void setStandIns(RtfState& state, Number number) {
    state.standIns = std::max(Long{0}, number.value_or(1));
}

const QHash<QStringView, Change>& changes() {
    static const QHash<QStringView, Change> all{
        {u"b", turn<&RtfCharacters::isBold>},
        {u"cf", setColour},
        {u"f", setFont},
        {u"fi", setLength<&RichParagraphFormat::firstIndent>},
        {u"fs", setSize},
        {u"i", turn<&RtfCharacters::isItalic>},
        {u"li", setLength<&RichParagraphFormat::leftIndent>},
        {u"pard", resetParagraph},
        {u"plain", resetCharacters},
        {u"qc", align<RichAlignment::Centre>},
        {u"qj", align<RichAlignment::Justified>},
        {u"ql", align<RichAlignment::Left>},
        {u"qr", align<RichAlignment::Right>},
        {u"ri", setLength<&RichParagraphFormat::rightIndent>},
        {u"sa", setLength<&RichParagraphFormat::spaceAfter>},
        {u"sb", setLength<&RichParagraphFormat::spaceBefore>},
        {u"strike", turn<&RtfCharacters::isStruckOut>},
        {u"striked", turn<&RtfCharacters::isStruckOut>},
        {u"tx", addTab},
        {u"uc", setStandIns},
        {u"ul", turn<&RtfCharacters::isUnderlined>},
        {u"uld", turn<&RtfCharacters::isUnderlined>},
        {u"uldash", turn<&RtfCharacters::isUnderlined>},
        {u"uldb", turn<&RtfCharacters::isUnderlined>},
        {u"ulnone", turnUnderlineOff},
        {u"ulth", turn<&RtfCharacters::isUnderlined>},
        {u"ulw", turn<&RtfCharacters::isUnderlined>},
        {u"ulwave", turn<&RtfCharacters::isUnderlined>},
        {u"v", turn<&RtfCharacters::isHidden>},
    };
    return all;
}

}  // namespace

bool changeFormat(RtfState& state, QStringView word, std::optional<Long> number) {
    const Change change = changes().value(word);
    if (change)
        change(state, number);
    return change != nullptr;
}
