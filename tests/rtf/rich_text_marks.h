// A rich text as a line for each of its paragraphs, which tests can read.
#pragma once

#include <QString>
#include <QStringList>

#include "rtf/rich_text.h"
#include "support/printing.h"

// What a format has that plain text has not: "<b Arial 14 #ff0000>".
inline QString marksOf(const RichFormat& format) {
    QStringList marks;
    if (format.isBold)
        marks += QStringLiteral("b");
    if (format.isItalic)
        marks += QStringLiteral("i");
    if (format.isUnderlined)
        marks += QStringLiteral("u");
    if (format.isStruckOut)
        marks += QStringLiteral("s");
    if (!format.font.isEmpty())
        marks += format.font;
    if (format.points != RichFormat().points)
        marks += QString::number(format.points);
    if (format.colour)
        marks += QStringLiteral("#%1").arg(*format.colour, 6, 16, QLatin1Char('0'));
    return marks.isEmpty() ? QString() : u'<' + marks.join(u' ') + u'>';
}

inline QString marksOf(const RichRun& run) {
    if (const auto* text = std::get_if<QString>(&run.content))
        return marksOf(run.format) + *text;
    const auto& picture = std::get<RichPicture>(run.content);
    return QStringLiteral("[picture %1x%2]").arg(picture.width).arg(picture.height);
}

// An alignment that is not to the left stands before the text: "centre:".
inline QStringList marksOf(const RichText& text) {
    const QStringList alignments{
        {}, QStringLiteral("centre:"), QStringLiteral("right:"), QStringLiteral("justified:")};
    QStringList lines;
    for (const RichParagraph& paragraph : text) {
        QString line = alignments[static_cast<int>(paragraph.format.alignment)];
        for (const RichRun& run : paragraph.runs)
            line += marksOf(run);
        lines += line;
    }
    return lines;
}
