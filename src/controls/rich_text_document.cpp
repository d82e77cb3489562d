// The formats, texts and pictures of both.
#include "controls/rich_text_document.h"

#include <QBuffer>
#include <QImageReader>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QUrl>

#include "controls/font_size.h"
#include "controls/text_colours.h"
#include "controls/twips.h"

namespace {

constexpr int kColourAsSet = QTextFormat::UserProperty;
constexpr qint64 kMostPixels = 64'000'000;  // of all pictures in a document

Long twips(double pixels) {
    return static_cast<Long>(std::lround(toTwips(pixels)));
}

constexpr Qt::Alignment kAlignments[] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight,
                                         Qt::AlignJustify};

QTextBlockFormat blockFormat(const RichParagraphFormat& paragraph) {
    QTextBlockFormat format;
    format.setAlignment(kAlignments[static_cast<int>(paragraph.alignment)]);
    format.setLeftMargin(exactPixels(paragraph.leftIndent));
    format.setRightMargin(exactPixels(paragraph.rightIndent));
    format.setTextIndent(exactPixels(paragraph.firstIndent));
    format.setTopMargin(exactPixels(paragraph.spaceBefore));
    format.setBottomMargin(exactPixels(paragraph.spaceAfter));
    QList<QTextOption::Tab> tabs;
    for (const Long tab : paragraph.tabs)
        tabs.append(QTextOption::Tab(exactPixels(tab), QTextOption::LeftTab));
    format.setTabPositions(tabs);
    return format;
}

RichAlignment alignmentOf(Qt::Alignment alignment) {
    if (alignment & Qt::AlignHCenter)
        return RichAlignment::Centre;
    if (alignment & Qt::AlignRight)
        return RichAlignment::Right;
    return alignment & Qt::AlignJustify ? RichAlignment::Justified : RichAlignment::Left;
}

RichParagraphFormat paragraphFormat(const QTextBlockFormat& format) {
    RichParagraphFormat paragraph{.alignment = alignmentOf(format.alignment()),
                                  .leftIndent = twips(format.leftMargin()),
                                  .rightIndent = twips(format.rightMargin()),
                                  .firstIndent = twips(format.textIndent()),
                                  .spaceBefore = twips(format.topMargin()),
                                  .spaceAfter = twips(format.bottomMargin())};
    for (const QTextOption::Tab& tab : format.tabPositions())
        paragraph.tabs.push_back(twips(tab.position));
    return paragraph;
}

QTextCharFormat charFormat(const RichFormat& rich, const QPalette& palette) {
    QTextCharFormat format;
    if (rich.colour)
        format = inColour(*rich.colour, palette);
    if (!rich.font.isEmpty())
        format.setFontFamilies({rich.font});
    format.setFontPointSize(rich.points);
    format.setFontWeight(rich.isBold ? QFont::Bold : QFont::Normal);
    format.setFontItalic(rich.isItalic);
    format.setFontUnderline(rich.isUnderlined);
    format.setFontStrikeOut(rich.isStruckOut);
    return format;
}

RichFormat richFormat(const QTextCharFormat& format, const QFont& plain) {
    RichFormat rich{.font = format.fontFamilies().toStringList().value(0, plain.family()),
                    .points = format.hasProperty(QTextFormat::FontPointSize)
                                  ? format.fontPointSize()
                                  : pointsOf(plain),
                    .isBold = format.fontWeight() >= QFont::Bold,
                    .isItalic = format.fontItalic(),
                    .isUnderlined = format.fontUnderline(),
                    .isStruckOut = format.fontStrikeOut()};
    if (format.hasProperty(kColourAsSet))
        rich.colour = colourAsSet(format);
    return rich;
}

// Puts a text into a document, from an empty one on.
class Composition {
  public:
    Composition(QTextDocument& document, const QPalette& palette)
        : document_(document), palette_(palette), cursor_(&document) {}

    void show(const RichText& text) {
        cursor_.beginEditBlock();
        for (const RichParagraph& paragraph : text)
            add(paragraph, &paragraph == &text.front());
        cursor_.endEditBlock();
    }

  private:
    void add(const RichParagraph& paragraph, bool isFirst) {
        const QTextBlockFormat format = blockFormat(paragraph.format);
        const QTextCharFormat endFormat = charFormat(paragraph.endFormat, palette_);
        if (isFirst) {
            cursor_.setBlockFormat(format);
            cursor_.setBlockCharFormat(endFormat);
        } else {
            cursor_.insertBlock(format, endFormat);
        }
        for (const RichRun& run : paragraph.runs)
            add(run);
    }

    void add(const RichRun& run) {
        if (const auto* text = std::get_if<QString>(&run.content))
            cursor_.insertText(*text, charFormat(run.format, palette_));
        else
            add(std::get<RichPicture>(run.content));
    }

    void add(const RichPicture& picture) {
        QByteArray file = picture.file;
        QBuffer buffer(&file);
        QImageReader reader(&buffer);
        const QSize size = reader.size();
        pixelsLeft_ -= qint64{size.width()} * size.height();
        const QImage image = pixelsLeft_ >= 0 ? reader.read() : QImage();
        if (image.isNull())
            return;
        const QSizeF natural = QSizeF(image.size()) * kTwipsPerPixel;
        cursor_.insertImage(
            pictureIn(document_, image,
                      {picture.width > 0 ? double(picture.width) : natural.width(),
                       picture.height > 0 ? double(picture.height) : natural.height()}));
    }

    QTextDocument& document_;
    const QPalette& palette_;
    QTextCursor cursor_;
    qint64 pixelsLeft_ = kMostPixels;
};

RichPicture richPicture(const QTextDocument& document, const QTextImageFormat& format) {
    constexpr int kQuickly = 80;  // zlib's first level, for a file a little larger
    RichPicture picture{.width = twips(format.width()), .height = twips(format.height())};
    QBuffer buffer(&picture.file);
    buffer.open(QIODevice::WriteOnly);
    document.resource(QTextDocument::ImageResource, QUrl(format.name()))
        .value<QImage>()
        .save(&buffer, "PNG", kQuickly);
    return picture;
}

RichRun richRun(const QTextDocument& document, const QTextFragment& fragment) {
    const RichFormat format = richFormat(fragment.charFormat(), document.defaultFont());
    if (fragment.charFormat().isImageFormat())
        return {richPicture(document, fragment.charFormat().toImageFormat()), format};
    return {fragment.text(), format};
}

}  // namespace

QTextCharFormat inColour(Long colour, const QPalette& palette) {
    QTextCharFormat format;
    format.setProperty(kColourAsSet, colour);
    format.setForeground(textColour(colour, palette));
    return format;
}

Long colourAsSet(const QTextFormat& format) {
    return format.intProperty(kColourAsSet);
}

void recolour(QTextDocument& document, const QPalette& palette) {
    QTextCursor cursor(&document);
    cursor.beginEditBlock();
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (const QTextLayout::FormatRange& run : block.textFormats()) {
            if (!run.format.hasProperty(kColourAsSet))
                continue;
            cursor.setPosition(block.position() + run.start);
            cursor.setPosition(block.position() + run.start + run.length, QTextCursor::KeepAnchor);
            cursor.mergeCharFormat(inColour(colourAsSet(run.format), palette));
        }
    }
    cursor.endEditBlock();
}

void showRichText(QTextDocument& document, const RichText& text, const QPalette& palette) {
    document.clear();
    Composition(document, palette).show(text);
}

RichText richTextOf(const QTextDocument& document) {
    RichText text;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        RichParagraph& paragraph = text.emplace_back();
        paragraph.format = paragraphFormat(block.blockFormat());
        paragraph.endFormat = richFormat(block.charFormat(), document.defaultFont());
        for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment)
            paragraph.runs.push_back(richRun(document, fragment.fragment()));
    }
    return text;
}

QTextImageFormat pictureIn(QTextDocument& document, const QImage& picture, QSizeF size) {
    QTextImageFormat format;
    format.setName(QStringLiteral("picture:%1").arg(picture.cacheKey()));
    format.setWidth(exactPixels(size.width()));
    format.setHeight(exactPixels(size.height()));
    document.addResource(QTextDocument::ImageResource, QUrl(format.name()), picture);
    return format;
}
