// The pieces that the documents of the reports are put together from, in rich text.
//
// Texts go in as they are: a backslash or a brace in a note means what it means in rich text. Every
// blank between two pieces stands in one of them.
#pragma once

#include <QLatin1String>
#include <QString>

#include "reports/report_colour.h"
#include "reports/report_person.h"

inline constexpr QLatin1String ParBreak(R"({\par})");

// Begins every document: Arial is font 0, Times New Roman font 1.
inline constexpr QLatin1String kDocumentHead(R"({\rtf1\ansi\ansicpg1252\deff0\deflang2057)"
                                             R"({\fonttbl{\f0\fswiss\fprq2\fcharset0 Arial;})"
                                             R"({\f1\fnil\fcharset0 Times New Roman;}})");

// Blue, red, dark green and purple as the colours 1 to 4.
inline constexpr QLatin1String kColourTable(
    R"({\colortbl ;\red0\green0\blue255;\red255\green0\blue0;)"
    R"(\red0\green128\blue0;\red128\green0\blue128;})");

// Ends every document. What is added behind it stands in the last paragraph, in the middle.
inline constexpr QLatin1String kDocumentEnd(R"(\qc})");

// A piece of a coloured document, and nothing in one that is black and white.
QLatin1String onlyInColour(Integer colour, QLatin1String piece);

// What a report on one person says from the birth date to the notes, each behind its name on a line
// of its own. The line of the birth date has begun, and that of the notes goes on.
QString personLines(const ReportPerson& person);
