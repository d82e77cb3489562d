// The writing, paragraph by paragraph.
#include "rtf/rtf_writer.h"

#include <QHash>
#include <QStringList>
#include <cmath>

#include "rtf/dib.h"

namespace {

// Things once each, in the order in which they come, and the number of each.
template <class Thing>
class Numbered {
  public:
    void add(const Thing& thing) {
        if (numbers_.contains(thing))
            return;
        numbers_.insert(thing, all_.size());
        all_.append(thing);
    }

    qsizetype numberOf(const Thing& thing) const { return numbers_.value(thing); }
    const QList<Thing>& all() const { return all_; }

  private:
    QList<Thing> all_;
    QHash<Thing, qsizetype> numbers_;
};

// The tables of a document.
class Tables {
  public:
    explicit Tables(const RichText& text) {
        for (const RichParagraph& paragraph : text) {
            for (const RichRun& run : paragraph.runs)
                add(run.format);
            add(paragraph.endFormat);
        }
    }

    qsizetype numberOfFont(const QString& font) const { return fonts_.numberOf(font); }

    // 0 is the colour of plain text.
    qsizetype numberOfColour(std::optional<Long> colour) const {
        return colour ? colours_.numberOf(*colour) + 1 : 0;
    }

    const QStringList& fonts() const { return fonts_.all(); }
    const QList<Long>& colours() const { return colours_.all(); }

  private:
    void add(const RichFormat& format) {
        fonts_.add(format.font);
        if (format.colour)
            colours_.add(*format.colour);
    }

    Numbered<QString> fonts_;
    Numbered<Long> colours_;
};

// The word that says what a file is; none for one that cannot be written.
const char* wordOfKind(const QByteArray& file) {
    if (isBmpFile(file))
        return "\\dibitmap0";
    if (file.startsWith("\x89PNG"))
        return "\\pngblip";
    return file.startsWith("\xFF\xD8") ? "\\jpegblip" : nullptr;
}

class RtfWriter {
  public:
    explicit RtfWriter(const RichText& text) : text_(text), tables_(text) {}

    QByteArray write();

  private:
    void writeTables();
    void writeParagraph(const RichParagraph& paragraph);
    void writeParagraphFormat(const RichParagraphFormat& format);
    void writeFormat(const RichFormat& format);
    void writeText(QStringView text);
    void writeCharacter(QChar character);
    void writePicture(const RichPicture& picture);

    // A control word, and one with a number.
    void word(const char* name) { document_ += name; }
    void word(const char* name, qint64 number) {
        document_ += name;
        document_ += QByteArray::number(number);
    }

    // The same for a number that is not 0.
    void wordUnlessNought(const char* name, Long number) {
        if (number != 0)
            word(name, number);
    }

    const RichText& text_;
    Tables tables_;
    QByteArray document_;
    std::optional<RichFormat> format_;  // in force
};

QByteArray RtfWriter::write() {
    document_ = "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0";
    writeTables();
    for (const RichParagraph& paragraph : text_) {
        if (&paragraph != &text_.front())
            document_ += "\\par\n";
        writeParagraph(paragraph);
    }
    return document_ + "}\n";
}

void RtfWriter::writeTables() {
    document_ += "{\\fonttbl";
    for (const QString& font : tables_.fonts()) {
        word("{\\f", tables_.numberOfFont(font));
        document_ += "\\fnil ";
        writeText(font);
        document_ += ";}";
    }
    document_ += "}\n{\\colortbl;";
    constexpr Long kPart = 0xFF;
    for (const Long colour : tables_.colours()) {
        word("\\red", colour & kPart);
        word("\\green", colour >> 8 & kPart);
        word("\\blue", colour >> 16 & kPart);
        document_ += ';';
    }
    document_ += "}\n";
}

void RtfWriter::writeParagraph(const RichParagraph& paragraph) {
    writeParagraphFormat(paragraph.format);
    for (const RichRun& run : paragraph.runs) {
        writeFormat(run.format);
        if (const auto* text = std::get_if<QString>(&run.content))
            writeText(*text);
        else
            writePicture(std::get<RichPicture>(run.content));
    }
    writeFormat(paragraph.endFormat);
}

void RtfWriter::writeParagraphFormat(const RichParagraphFormat& format) {
    constexpr const char* kAlignments[] = {"\\ql", "\\qc", "\\qr", "\\qj"};
    word("\\pard");
    word(kAlignments[static_cast<int>(format.alignment)]);
    wordUnlessNought("\\li", format.leftIndent);
    wordUnlessNought("\\ri", format.rightIndent);
    wordUnlessNought("\\fi", format.firstIndent);
    wordUnlessNought("\\sb", format.spaceBefore);
    wordUnlessNought("\\sa", format.spaceAfter);
    for (const Long tab : format.tabs)
        word("\\tx", tab);
    document_ += ' ';
}

void RtfWriter::writeFormat(const RichFormat& format) {
    if (format_ == format)
        return;
    format_ = format;
    word("\\plain");
    word("\\f", tables_.numberOfFont(format.font));
    word("\\fs", std::lround(format.points * 2));
    word("\\cf", tables_.numberOfColour(format.colour));
    if (format.isBold)
        word("\\b");
    if (format.isItalic)
        word("\\i");
    if (format.isUnderlined)
        word("\\ul");
    if (format.isStruckOut)
        word("\\strike");
    document_ += ' ';
}

void RtfWriter::writeText(QStringView text) {
    for (const QChar character : text)
        writeCharacter(character);
}

void RtfWriter::writeCharacter(QChar character) {
    constexpr char16_t kLastPlain = 0x7E;
    switch (character.unicode()) {
        case u'\\':
        case u'{':
        case u'}':
            document_ += '\\';
            document_ += character.toLatin1();
            break;
        case u'\t':
            document_ += "\\tab ";
            break;
        case QChar::LineSeparator:
            document_ += "\\line ";
            break;
        default:
            if (character >= u' ' && character <= kLastPlain) {
                document_ += character.toLatin1();
            } else {
                // Some readers pass over the whole word that a plain question mark begins.
                word("\\u", static_cast<qint16>(character.unicode()));
                word("\\'3f");
            }
    }
}

void RtfWriter::writePicture(const RichPicture& picture) {
    const char* kind = wordOfKind(picture.file);
    if (!kind)
        return;
    document_ += "{\\pict";
    word(kind);
    wordUnlessNought("\\picwgoal", picture.width);
    wordUnlessNought("\\pichgoal", picture.height);
    document_ += '\n';
    document_ += (isBmpFile(picture.file) ? dibOf(picture.file) : picture.file).toHex();
    document_ += '}';
}

}  // namespace

QByteArray writeRtf(const RichText& text) {
    return RtfWriter(text).write();
}
