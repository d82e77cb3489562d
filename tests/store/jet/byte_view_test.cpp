// The reading of bytes within their bounds.
#include "store/jet/byte_view.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

const QByteArray kBytes = QByteArray::fromHex("01fe0380000000000000f4bf");

}  // namespace

TEST(ByteView, ReadsNumbersFromTheLeastByteOn) {
    const ByteView view(kBytes);
    EXPECT_EQ(view.numberAt<std::uint8_t>(1), 0xFE);
    EXPECT_EQ(view.numberAt<std::uint16_t>(0), 0xFE01);
    EXPECT_EQ(view.numberAt<std::int16_t>(0), -511);
    EXPECT_EQ(view.numberAt<std::uint32_t>(0), 0x8003FE01);
    EXPECT_EQ(view.numberAt<double>(4), -1.25);
    EXPECT_EQ(view.numberAt(1, 1), 0xFE);
    EXPECT_EQ(view.numberAt(1, 2), 0x03FE);
}

TEST(ByteView, ReadsUpToItsEndAndNoFurther) {
    const ByteView view(kBytes);
    EXPECT_EQ(view.numberAt<std::uint8_t>(11), 0xBF);
    EXPECT_THROW(view.numberAt<std::uint8_t>(12), JetDamage);
    EXPECT_THROW(view.numberAt<std::uint16_t>(11), JetDamage);
    EXPECT_THROW(view.numberAt<std::uint32_t>(9), JetDamage);
    EXPECT_THROW(view.numberAt<double>(5), JetDamage);
    EXPECT_THROW(view.numberAt<std::uint8_t>(-1), JetDamage);
    EXPECT_THROW(view.numberAt<std::uint32_t>(std::numeric_limits<qsizetype>::max()), JetDamage);
    EXPECT_THROW(ByteView().numberAt<std::uint8_t>(0), JetDamage);
}

TEST(ByteView, GivesItsPartsWithBoundsOfTheirOwn) {
    const ByteView part = ByteView(kBytes).part(1, 2);
    EXPECT_EQ(part.length(), 2);
    EXPECT_EQ(part.numberAt<std::uint16_t>(0), 0x03FE);
    EXPECT_THROW(part.numberAt<std::uint8_t>(2), JetDamage);
    EXPECT_EQ(ByteView(kBytes).from(11).copy(), QByteArray("\xBF"));
    EXPECT_EQ(ByteView(kBytes).from(12).length(), 0);
    EXPECT_THROW(ByteView(kBytes).from(13), JetDamage);
    EXPECT_THROW(ByteView(kBytes).part(0, 13), JetDamage);
    EXPECT_THROW(ByteView(kBytes).part(2, -1), JetDamage);
    EXPECT_THROW(ByteView(kBytes).part(12, 1), JetDamage);
}
