// What holds at a place of a rich text document, and the words that change it.
#pragma once

#include <QStringView>
#include <optional>

#include "rtf/rich_text.h"

// The format of characters in the document's own terms. Fonts and colours are numbers of tables.
struct RtfCharacters {
    std::optional<Long> font = {};  // none: the document's default
    Long halfPoints = 24;
    bool isBold = false;
    bool isItalic = false;
    bool isUnderlined = false;
    bool isStruckOut = false;
    bool isHidden = false;
    Long colour = 0;

    friend bool operator==(const RtfCharacters&, const RtfCharacters&) = default;
};

// What the characters of a group are for.
enum class RtfDestination { Text, FontTable, ColourTable, Picture, Nobody };

// What a group changes for itself alone.
struct RtfState {
    RtfDestination destination = RtfDestination::Text;
    RtfCharacters characters = {};
    RichParagraphFormat paragraph = {};
    Long standIns = 1;  // characters behind \u, for those who do not know it
};

// Does what a word of formats says, and returns whether it is one.
bool changeFormat(RtfState& state, QStringView word, std::optional<Long> number);
