// A text with formats and pictures, as plain data.
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <variant>
#include <vector>

#include "cycles/integers.h"

struct RichFormat {
    QString font = {};  // its family; the reader's choice where there is none
    double points = 12;
    bool isBold = false;
    bool isItalic = false;
    bool isUnderlined = false;
    bool isStruckOut = false;
    std::optional<Long> colour = {};  // 0xBBGGRR; none: that of plain text

    friend bool operator==(const RichFormat&, const RichFormat&) = default;
};

struct RichPicture {
    QByteArray file = {};  // the contents of a PNG, JPEG or BMP file
    Long width = 0;        // twips; 0: as the picture itself has it
    Long height = 0;       // the same

    friend bool operator==(const RichPicture&, const RichPicture&) = default;
};

// A piece of a paragraph in one format. A text has no line end but U+2028, which begins a line
// within the paragraph, and tabs.
struct RichRun {
    std::variant<QString, RichPicture> content;
    RichFormat format = {};

    friend bool operator==(const RichRun&, const RichRun&) = default;
};

enum class RichAlignment { Left, Centre, Right, Justified };

// Lengths are twips.
struct RichParagraphFormat {
    RichAlignment alignment = RichAlignment::Left;
    Long leftIndent = 0;
    Long rightIndent = 0;
    Long firstIndent = 0;  // of the first line, on top of the left one
    Long spaceBefore = 0;
    Long spaceAfter = 0;
    std::vector<Long> tabs = {};  // from the left; behind them there is one every kDefaultTab

    friend bool operator==(const RichParagraphFormat&, const RichParagraphFormat&) = default;
};

inline constexpr Long kDefaultTab = 720;
inline constexpr Long kLongest = 31680;  // 22 inches; no length is read as longer

struct RichParagraph {
    RichParagraphFormat format = {};
    std::vector<RichRun> runs = {};
    RichFormat endFormat = {};  // of its end, and so of what may be added there

    friend bool operator==(const RichParagraph&, const RichParagraph&) = default;
};

// A document has one paragraph at least.
using RichText = std::vector<RichParagraph>;
