// The text of Ondara's small files as bytes.
#pragma once

#include <QByteArray>
#include <QString>

// Windows-1252, one byte a character, where the code page has every character and the bytes could
// not be read as anything else; UTF-8 otherwise. So a plain file is one that every other program of
// the system reads, and no name is ever lost.
QByteArray encodeSmallText(const QString& text);

// The text of such bytes, whoever wrote them: what is valid UTF-8 with at least one character of
// several bytes is read as UTF-8, everything else as Windows-1252. There are no bytes that it
// cannot read.
QString decodeSmallText(const QByteArray& bytes);
