// The code page Windows-1252, one byte a character.
#pragma once

#include <QByteArrayView>
#include <QString>
#include <cstdint>
#include <optional>

// Every byte is a character: the five that the code page leaves open stand for the control
// characters of their number.
QChar characterOfByte(std::uint8_t byte);

// The text of bytes, character by character.
QString textOfBytes(QByteArrayView bytes);

// The byte of a character; none if the code page does not have it.
std::optional<std::uint8_t> byteOfCharacter(QChar character);
