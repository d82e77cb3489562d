// Memos of every length, wherever they lie.
#include "store/jet/long_value.h"

#include <gtest/gtest.h>

#include <QBuffer>

#include "store/jet/jet_reading.h"
#include "support/errors.h"
#include "support/printing.h"

namespace {

class LongValues : public testing::TestWithParam<int> {
  protected:
    // What is read of memos of these lengths, laid out in pieces of that size.
    static void expectMemos(const std::vector<int>& lengths, int piece, bool isCompressed) {
        BuiltTable table{text("T"), {{text("Memo"), JetType::Memo}}, {}};
        table.memoPiece = piece;
        table.hasCompressedTexts = isCompressed;
        for (const int length : lengths)
            table.rows.push_back({{longText(length)}});
        const JetFile file(builtJet(GetParam(), {table}).bytes, text("name"));
        EXPECT_EQ(rowsOf(file, "T", list({"Memo"})), liveRows(table)) << piece;
    }

    // Whether such a field is damaged; the file behind it has no long values.
    static bool isDamaged(const QByteArray& field) {
        auto buffer = std::make_unique<QBuffer>();
        buffer->setData(builtJet(GetParam(), {}).bytes);
        buffer->open(QIODevice::ReadOnly);
        JetPages pages(std::move(buffer), {});
        ReadAllowance allowance(1000);
        try {
            longValue(ByteView(field), pages, allowance);
            return false;
        } catch (const JetDamage&) {
            return true;
        }
    }
};

INSTANTIATE_TEST_SUITE_P(Jet, LongValues, testing::Values(3, 4));

}  // namespace

TEST_P(LongValues, AreReadAtEveryLength) {
    for (const bool isCompressed : {false, true}) {
        expectMemos({0,    1,    31,   32,   33,   63,   64,   65,   1000, 2031, 2032,
                     2033, 2036, 2037, 4076, 4077, 4078, 4079, 4080, 4081, 9000, 40'000},
                    0, isCompressed);
        expectMemos({70, 99, 100, 101, 200, 1000}, 1, isCompressed);
        expectMemos({70, 99, 100, 101, 200, 1000}, 100, isCompressed);
    }
}

TEST_P(LongValues, WithoutAFieldAreEmpty) {
    EXPECT_FALSE(isDamaged({}));
    EXPECT_FALSE(isDamaged(QByteArray::fromHex("000000800000000000000000")));
    EXPECT_FALSE(isDamaged(QByteArray::fromHex("000000000000000000000000")));
}

TEST_P(LongValues, OfNoBytesAreNotLookedFor) {
    EXPECT_FALSE(isDamaged(QByteArray::fromHex("000000000001000000000000")));
    EXPECT_FALSE(isDamaged(QByteArray::fromHex("000000400001000000000000")));
}

TEST_P(LongValues, HaveTheLengthThatTheyTell) {
    EXPECT_FALSE(isDamaged(QByteArray::fromHex("0200008000000000000000004142")));
    EXPECT_TRUE(isDamaged(QByteArray::fromHex("0100008000000000000000004142")));
    EXPECT_TRUE(isDamaged(QByteArray::fromHex("0300008000000000000000004142")));
    EXPECT_TRUE(isDamaged(QByteArray::fromHex("020000000000000000000000")));
    EXPECT_TRUE(isDamaged(QByteArray::fromHex("02000080000000")));
    EXPECT_TRUE(isDamaged(QByteArray::fromHex("02")));
}

TEST_P(LongValues, LieOnPagesOfTheirOwn) {
    EXPECT_TRUE(isDamaged(QByteArray::fromHex("020000400001000000000000")));
    EXPECT_TRUE(isDamaged(QByteArray::fromHex("020000400000000000000000")));
    EXPECT_TRUE(isDamaged(QByteArray::fromHex("020000000001000000000000")));
}

TEST_P(LongValues, ThatAreDeletedOrHaveMovedAreErrors) {
    BuiltTable table{text("T"), {{text("Memo"), JetType::Memo}}, {{{longText(200)}}}};
    BuiltJet jet = builtJet(GetParam(), {table});
    const qsizetype slot =
        jet.place(jet.tables.front().longValues.front(), GetParam() == 4 ? 14 : 10) + 1;
    for (const int flag : {0x80, 0x40}) {
        QByteArray bytes = jet.bytes;
        bytes[slot] = static_cast<char>(bytes[slot] | flag);
        EXPECT_EQ(descriptionOf([&] { rowsOf(JetFile(bytes, text("name")), "T", list({"Memo"})); }),
                  text("Invalid file format: the file is damaged, a long value is not where it "
                       "should be, name"));
    }
}
