// The reading, token by token.
#include "rtf/rtf_reader.h"

#include <QHash>
#include <QSet>
#include <algorithm>
#include <iterator>
#include <utility>

#include "rtf/rich_text_builder.h"
#include "rtf/rtf_picture.h"
#include "rtf/rtf_state.h"
#include "rtf/rtf_tables.h"
#include "rtf/rtf_tokens.h"
#include "runtime/code_page.h"

namespace {

constexpr std::size_t kDeepest = 200;  // groups

// Words that stand for a character.
QChar characterOf(QStringView word) {
    static const QHash<QStringView, QChar> characters{
        {u"bullet", u'\u2022'},    {u"cell", u'\t'},
        {u"emdash", u'\u2014'},    {u"emspace", u'\u2003'},
        {u"endash", u'\u2013'},    {u"enspace", u'\u2002'},
        {u"ldblquote", u'\u201C'}, {u"line", QChar::LineSeparator},
        {u"lquote", u'\u2018'},    {u"nestcell", u'\t'},
        {u"rdblquote", u'\u201D'}, {u"rquote", u'\u2019'},
        {u"tab", u'\t'},
    };
    return characters.value(word);
}

// The same of symbols.
QChar symbolCharacter(QChar symbol) {
    switch (symbol.unicode()) {
        case u'~':
            return QChar::Nbsp;
        case u'_':
            return u'\u2011';
        case u'-':
            return QChar::SoftHyphen;
        case u'\\':
        case u'{':
        case u'}':
            return symbol;
        default:
            return {};
    }
}

// Whether a character stands for itself in a text. The others are control characters, or would be
// taken for the end of a paragraph or the place of a picture.
bool isOrdinary(QChar character) {
    switch (character.unicode()) {
        case QChar::ParagraphSeparator:
        case QChar::ObjectReplacementCharacter:
        case 0xFDD0:
        case 0xFDD1:
            return false;
        default:
            return character >= u' ' || character == u'\t';
    }
}

bool endsParagraph(QStringView word) {
    return word == u"par" || word == u"row";
}

// Words behind which the text goes on elsewhere. They end a paragraph only where one has begun.
bool beginsElsewhere(QStringView word) {
    return word == u"page" || word == u"column" || word == u"sect";
}

// Groups for others, besides those that begin with \*.
bool isForOthers(QStringView word) {
    static const QSet<QStringView> words{
        u"annotation", u"filetbl",  u"fldinst",    u"footer",  u"footerf",   u"footerl",
        u"footerr",    u"footnote", u"ftnsep",     u"header",  u"headerf",   u"headerl",
        u"headerr",    u"info",     u"nonshppict", u"objdata", u"stylesheet"};
    return words.contains(word);
}

// What the characters of a group are for, by the word that it begins with.
std::optional<RtfDestination> destinationOf(QStringView word) {
    if (word == u"fonttbl")
        return RtfDestination::FontTable;
    if (word == u"colortbl")
        return RtfDestination::ColourTable;
    if (word == u"pict")
        return RtfDestination::Picture;
    return isForOthers(word) ? std::optional(RtfDestination::Nobody) : std::nullopt;
}

class RtfReader {
  public:
    explicit RtfReader(QStringView document) : tokens_(document) {}

    RichText read();

  private:
    void takeToken(const RtfToken& token);
    void beginGroup();
    void endGroup();
    void takeWord(QStringView word, std::optional<Long> number);
    bool takeDestination(QStringView word);
    void takeWordOfText(QStringView word, std::optional<Long> number);
    void takeWordOfTable(QStringView word, Long number);
    void takeUnicode(Long number);
    void takeSymbol(QChar symbol);
    void takeText(QStringView text);
    void takeBytes(QStringView bytes);
    void addText(QStringView text);
    void endParagraph();
    RtfDestination destination() const;
    const RichFormat& format();

    RtfTokens tokens_;
    RtfState state_;
    std::vector<RtfState> groups_;  // for each that is open, what held before it
    std::size_t tooDeep_ = 0;       // groups that are open below the deepest
    bool isOver_ = false;
    bool isFirst_ = false;     // in its group is what comes next
    bool isOptional_ = false;  // after \*: who does not know the word passes its group over
    Long standInsLeft_ = 0;    // to pass over
    RtfTables tables_;
    RtfPicture picture_;
    RichTextBuilder builder_;
    RtfCharacters formatted_;  // whose format is known
    std::optional<RichFormat> format_;
};

RichText RtfReader::read() {
    while (!isOver_)
        takeToken(tokens_.nextToken());
    return builder_.finish(state_.paragraph, format());
}

void RtfReader::takeToken(const RtfToken& token) {
    switch (token.kind) {
        case RtfToken::Kind::GroupStart:
            beginGroup();
            break;
        case RtfToken::Kind::GroupEnd:
            endGroup();
            break;
        case RtfToken::Kind::Word:
            takeWord(token.text, token.number);
            break;
        case RtfToken::Kind::Symbol:
            takeSymbol(token.text.front());
            break;
        case RtfToken::Kind::Byte:
            takeText(QString(characterOfByte(static_cast<std::uint8_t>(*token.number))));
            break;
        case RtfToken::Kind::Text:
            takeText(token.text);
            break;
        case RtfToken::Kind::Binary:
            takeBytes(token.text);
            break;
        case RtfToken::Kind::End:
            isOver_ = true;
            break;
    }
    isOptional_ = isFirst_ && token.kind == RtfToken::Kind::Symbol && token.text == u"*";
    isFirst_ = token.kind == RtfToken::Kind::GroupStart;
}

void RtfReader::beginGroup() {
    standInsLeft_ = 0;
    if (groups_.size() == kDeepest)
        ++tooDeep_;
    else
        groups_.push_back(state_);
}

// What holds at the end of the document stays: it is the format of its last paragraph.
void RtfReader::endGroup() {
    standInsLeft_ = 0;
    if (tooDeep_ > 0) {
        --tooDeep_;
        return;
    }
    isOver_ = groups_.size() <= 1;
    if (isOver_)
        return;
    const bool wasPicture = state_.destination == RtfDestination::Picture;
    state_ = std::move(groups_.back());
    groups_.pop_back();
    if (wasPicture && state_.destination == RtfDestination::Text) {
        if (std::optional<RichPicture> picture = picture_.finish())
            builder_.add(std::move(*picture), format());
    }
}

void RtfReader::takeWord(QStringView word, std::optional<Long> number) {
    standInsLeft_ = 0;
    if (tooDeep_ > 0 || takeDestination(word))
        return;
    if (word == u"u" && number) {
        takeUnicode(*number);
        return;
    }
    switch (state_.destination) {
        case RtfDestination::Text:
            takeWordOfText(word, number);
            break;
        case RtfDestination::FontTable:
        case RtfDestination::ColourTable:
            takeWordOfTable(word, number.value_or(0));
            break;
        case RtfDestination::Picture:
            picture_.takeWord(word, number);
            break;
        case RtfDestination::Nobody:
            break;
    }
}

// Whether the word says what its group is for, as only the first one does.
bool RtfReader::takeDestination(QStringView word) {
    if (state_.destination == RtfDestination::Nobody)
        return true;
    if (!isFirst_ && !isOptional_)
        return false;
    const std::optional<RtfDestination> destination = destinationOf(word);
    if (!destination && (!isOptional_ || word == u"shppict"))
        return false;
    state_.destination = destination.value_or(RtfDestination::Nobody);
    if (state_.destination == RtfDestination::Picture)
        picture_ = {};
    format_.reset();
    return true;
}

void RtfReader::takeWordOfText(QStringView word, std::optional<Long> number) {
    if (changeFormat(state_, word, number))
        return;
    if (const QChar character = characterOf(word); !character.isNull())
        addText(QStringView(&character, 1));
    else if (endsParagraph(word) || (beginsElsewhere(word) && !builder_.isAtBeginning()))
        endParagraph();
    else if (word == u"deff")
        tables_.setDefaultFont(number.value_or(0));
}

void RtfReader::takeWordOfTable(QStringView word, Long number) {
    if (word == u"f")
        tables_.beginFont(number);
    else if (word == u"red")
        tables_.setRed(number);
    else if (word == u"green")
        tables_.setGreen(number);
    else if (word == u"blue")
        tables_.setBlue(number);
}

void RtfReader::takeUnicode(Long number) {
    const QChar character(static_cast<char16_t>(number));
    takeText(QStringView(&character, 1));
    standInsLeft_ = state_.standIns;
}

void RtfReader::takeSymbol(QChar symbol) {
    if (symbol == u'\r' || symbol == u'\n')
        endParagraph();
    else if (const QChar character = symbolCharacter(symbol); !character.isNull())
        takeText(QStringView(&character, 1));
}

void RtfReader::takeText(QStringView text) {
    const qsizetype skipped = std::min<qsizetype>(standInsLeft_, text.size());
    standInsLeft_ -= static_cast<Long>(skipped);
    const QStringView rest = text.mid(skipped);
    switch (destination()) {
        case RtfDestination::Text:
            addText(rest);
            break;
        case RtfDestination::FontTable:
            tables_.addFontName(rest);
            break;
        case RtfDestination::ColourTable:
            tables_.addColourText(rest);
            break;
        case RtfDestination::Picture:
            picture_.addDigits(rest);
            break;
        case RtfDestination::Nobody:
            break;
    }
}

void RtfReader::takeBytes(QStringView bytes) {
    if (destination() == RtfDestination::Picture)
        picture_.addBytes(bytes);
}

void RtfReader::addText(QStringView text) {
    if (state_.characters.isHidden)
        return;
    if (std::all_of(text.begin(), text.end(), isOrdinary)) {
        builder_.add(text, format());
        return;
    }
    QString ordinary;
    std::copy_if(text.begin(), text.end(), std::back_inserter(ordinary), isOrdinary);
    builder_.add(ordinary, format());
}

void RtfReader::endParagraph() {
    if (destination() == RtfDestination::Text)
        builder_.endParagraph(state_.paragraph, format());
}

RtfDestination RtfReader::destination() const {
    return tooDeep_ > 0 ? RtfDestination::Nobody : state_.destination;
}

const RichFormat& RtfReader::format() {
    if (!format_ || formatted_ != state_.characters) {
        formatted_ = state_.characters;
        format_ = tables_.format(formatted_);
    }
    return *format_;
}

}  // namespace

bool isRtf(QStringView text) {
    return text.startsWith(u"{\\rtf");
}

RichText readRtf(QStringView document) {
    return RtfReader(document).read();
}
