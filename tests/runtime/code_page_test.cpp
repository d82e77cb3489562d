// The code page Windows-1252.
#include "runtime/code_page.h"

#include <gtest/gtest.h>

TEST(CodePage, HasACharacterForEveryByteAndFindsItAgain) {
    for (int byte = 0; byte < 256; ++byte) {
        const auto value = static_cast<std::uint8_t>(byte);
        EXPECT_EQ(byteOfCharacter(characterOfByte(value)), value) << byte;
    }
}

TEST(CodePage, IsLatinButForThirtyTwoBytes) {
    EXPECT_EQ(characterOfByte('A'), u'A');
    EXPECT_EQ(characterOfByte(0x7F), QChar(0x7F));
    EXPECT_EQ(characterOfByte(0x80), u'€');
    EXPECT_EQ(characterOfByte(0x9F), u'Ÿ');
    EXPECT_EQ(characterOfByte(0xA0), QChar(0xA0));
    EXPECT_EQ(characterOfByte(0xFC), u'ü');
}

TEST(CodePage, MakesATextOfBytes) {
    EXPECT_EQ(textOfBytes("M\xFCller \x80"), u"Müller €");
    EXPECT_EQ(textOfBytes({}), QString());
    EXPECT_EQ(textOfBytes(QByteArrayView("a\0b", 3)).size(), 3);
}

TEST(CodePage, LacksWhatIsBeyondIt) {
    EXPECT_EQ(byteOfCharacter(u'Ч'), std::nullopt);
    EXPECT_EQ(byteOfCharacter(QChar(0x100)), std::nullopt);
}
