// Damaged Jet files: they end in an error, or the damage is in nothing that is read.
#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QtEndian>
#include <fstream>
#include <random>
#include <string>

#include "store/jet/jet_reading.h"
#include "store/jet/read_any_jet.h"
#include "store/jet/samples.h"
#include "support/errors.h"
#include "support/files.h"
#include "support/printing.h"

namespace {

constexpr qint64 kPatience = 2000;  // milliseconds

// Both formats, with the same people.
class DamagedJet : public testing::TestWithParam<int> {
  protected:
    // The rows of a file as it is now, or none where it ends in an error that tells of damage.
    std::optional<Rows> rowsNow(const QByteArray& bytes) const {
        try {
            return rowsOf(JetFile(bytes, text("name")), "Data", peopleColumns());
        } catch (const RuntimeError& error) {
            EXPECT_TRUE(error.number == 321 || error.number == 440)
                << error.description.toStdString();
            return std::nullopt;
        }
    }

    void expectRowsOrError(const QByteArray& bytes, const std::string& what) const {
        const std::optional<Rows> rows = rowsNow(bytes);
        EXPECT_TRUE(!rows || *rows == rows_) << what;
    }

    // The error of the file after a number has been written over it.
    template <class Number>
    QString errorWith(qsizetype place, Number number) const {
        QByteArray bytes = jet_.bytes;
        qToLittleEndian(number, bytes.data() + place);
        QString error =
            descriptionOf([&] { rowsOf(JetFile(bytes, text("name")), "Data", peopleColumns()); });
        error.remove(text("Invalid file format: the file is damaged, "));
        return error.remove(text(", name"));
    }

    const BuiltPlaces& places() const { return jet_.tables.front(); }
    bool is4() const { return GetParam() == 4; }
    qsizetype slots() const { return is4() ? 14 : 10; }

    int rowsOn(std::uint32_t page) const {
        return qFromLittleEndian<std::uint16_t>(jet_.bytes.constData() +
                                                jet_.place(page, is4() ? 12 : 8));
    }

    // What the page says of where a row is.
    std::uint16_t slot(std::uint32_t page, int row) const {
        return qFromLittleEndian<std::uint16_t>(jet_.bytes.constData() +
                                                jet_.place(page, slots() + 2 * row));
    }

    // The place of a row of a page of the table.
    qsizetype rowPlace(std::uint32_t page, int row) const {
        return jet_.place(page, slot(page, row) & 0x1FFF);
    }

    void expectMoreThanTheFile(const QStringList& columns) const {
        QElapsedTimer timer;
        timer.start();
        EXPECT_EQ(
            descriptionOf([&] { rowsOf(JetFile(jet_.bytes, text("name")), "Data", columns); }),
            text("Invalid file format: the file is damaged, its rows hold more than the whole "
                 "file, name"));
        EXPECT_LT(timer.elapsed(), kPatience);
    }

    BuiltJet jet_ = builtJet(GetParam(), {builtPeople()});
    Rows rows_ = liveRows(builtPeople());
};

// A file with some of its bytes changed, most of them to what means something in it.
QByteArray damaged(QByteArray bytes, std::mt19937& random) {
    const auto below = [&random](qsizetype end) {
        return static_cast<qsizetype>(random() % static_cast<unsigned>(end));
    };
    for (qsizetype damages = 1 + below(4); damages > 0; --damages) {
        const qsizetype place = below(bytes.size() - 4);
        switch (below(6)) {
            case 0:
                bytes[place] = static_cast<char>(bytes[place] ^ (1 << below(8)));
                break;
            case 1:
                bytes[place] = static_cast<char>(random());
                break;
            case 2:
                qToLittleEndian(static_cast<std::uint32_t>(below(64) << 8 | below(4)),
                                bytes.data() + place);
                break;
            case 3:
                qToLittleEndian(static_cast<std::uint16_t>(0xFFFF << below(16)),
                                bytes.data() + place);
                break;
            case 4:
                bytes.replace(place, 4, bytes.mid(below(bytes.size() - 4), 4));
                break;
            default:
                bytes.replace(place, std::min<qsizetype>(16, bytes.size() - place),
                              QByteArray(std::min<qsizetype>(16, bytes.size() - place), '\0'));
        }
    }
    return bytes;
}

void readDamaged(const QByteArray& file) {
    constexpr int kRounds = 20'000;
    std::mt19937 random(8);
    QElapsedTimer timer;
    for (int round = 0; round < kRounds; ++round) {
        const QByteArray bytes = damaged(file, random);
        timer.start();
        ASSERT_TRUE(canReadAnyJet(bytes)) << round;
        ASSERT_LT(timer.elapsed(), kPatience) << round;
    }
}

// The most memory that this process has had, in MiB; 0 where the system does not tell.
long mostMemory() {
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line)) {
        if (line.starts_with("VmHWM:"))
            return std::stol(line.substr(6)) / 1024;
    }
    return 0;
}

INSTANTIATE_TEST_SUITE_P(Jet, DamagedJet, testing::Values(3, 4));

}  // namespace

TEST_P(DamagedJet, IsReadWhileItIsWhole) {
    EXPECT_EQ(rowsNow(jet_.bytes), rows_);
}

TEST_P(DamagedJet, IsAnErrorWhereverItBreaksOff) {
    for (qsizetype length = 0; length < jet_.bytes.size(); ++length) {
        const QByteArray bytes = jet_.bytes.first(length);
        if (length % jet_.pageSize == 0)
            expectRowsOrError(bytes, std::to_string(length));
        else
            ASSERT_FALSE(rowsNow(bytes)) << length;
    }
    EXPECT_EQ(descriptionOf([this] { JetFile(jet_.bytes.chopped(1), text("name")); }),
              text("Invalid file format: the file is damaged, it is cut short, name"));
}

TEST_P(DamagedJet, IsAnErrorWhereAPageIsGone) {
    for (qsizetype page = 0; page < jet_.bytes.size(); page += jet_.pageSize) {
        for (const char filling : {'\0', '\xFF'}) {
            QByteArray bytes = jet_.bytes;
            bytes.replace(page, jet_.pageSize, QByteArray(jet_.pageSize, filling));
            expectRowsOrError(bytes, std::to_string(page));
        }
    }
}

TEST_P(DamagedJet, IsAnErrorWherePagesHaveChangedPlaces) {
    const qsizetype pages = jet_.bytes.size() / jet_.pageSize;
    for (qsizetype one = 0; one < pages; ++one) {
        for (qsizetype other = 0; other < pages; ++other) {
            QByteArray bytes = jet_.bytes;
            bytes.replace(one * jet_.pageSize, jet_.pageSize,
                          jet_.bytes.mid(other * jet_.pageSize, jet_.pageSize));
            // One page of long values may well stand for another.
            if (bytes.mid(one * jet_.pageSize + 4, 4) != "LVAL")
                expectRowsOrError(bytes, std::to_string(one) + " by " + std::to_string(other));
        }
    }
}

TEST_P(DamagedJet, EndsInAnyCaseWithABitChanged) {
    for (qsizetype bit = 0; bit < 8 * jet_.bytes.size(); bit += 61) {
        QByteArray bytes = jet_.bytes;
        bytes[bit / 8] = static_cast<char>(bytes[bit / 8] ^ (1 << bit % 8));
        ASSERT_TRUE(canReadAnyJet(bytes)) << bit;
    }
}

TEST_P(DamagedJet, LosesNoPageFromItsMapUnseen) {
    const qsizetype map = rowPlace(places().map, 0);
    for (qsizetype bit = 0; bit < 64; ++bit) {
        QByteArray bytes = jet_.bytes;
        bytes[map + 5 + bit / 8] = static_cast<char>(bytes[map + 5 + bit / 8] ^ (1 << bit % 8));
        EXPECT_FALSE(rowsNow(bytes)) << bit;
    }
}

TEST_P(DamagedJet, HasNoDefinitionWithoutEnd) {
    const qsizetype next = jet_.place(places().definition, 4);
    EXPECT_EQ(errorWith(next, places().definition), text("the definition of a table has no end"));
    EXPECT_EQ(errorWith(next, std::uint32_t{0xFFFFFF}), text("page 16777215 lies beyond its end"));
    EXPECT_EQ(
        errorWith(next, places().rows.front()),
        QStringLiteral("page %1 is not of the kind that it should be").arg(places().rows.front()));
}

TEST_P(DamagedJet, HasNoAbsurdCounts) {
    const qsizetype columns = jet_.place(places().definition, is4() ? 45 : 25);
    EXPECT_EQ(errorWith(columns, std::uint16_t{0xFFFF}), text("a table has 65535 columns"));
    EXPECT_EQ(errorWith(columns, std::uint16_t{255}), text("something in it breaks off"));
    const qsizetype indexes = jet_.place(places().definition, is4() ? 51 : 31);
    EXPECT_EQ(errorWith(indexes, std::uint32_t{0xFFFFFFFF}), text("something in it breaks off"));
    const qsizetype rows = jet_.place(places().rows.front(), is4() ? 12 : 8);
    EXPECT_EQ(errorWith(rows, std::uint16_t{0xFFFF}), text("a row lies over the places of others"));
    EXPECT_EQ(errorWith(rows, std::uint16_t{0}), text("a table has 0 rows in place of 6"));
    const qsizetype told = jet_.place(places().definition, is4() ? 16 : 12);
    EXPECT_EQ(errorWith(told, std::uint32_t{7}), text("a table has 6 rows in place of 7"));
    EXPECT_EQ(errorWith(told, std::uint32_t{5}), text("a table has 6 rows in place of 5"));
}

TEST_P(DamagedJet, HasNoRowThatMovesInACircle) {
    const std::uint32_t page = places().rows.front();
    EXPECT_EQ(errorWith(rowPlace(page, 1), page << 8 | 1), text("a row has moved in a circle"));
    EXPECT_EQ(errorWith(rowPlace(page, 1), places().longValues.front() << 8),
              QStringLiteral("page %1 is not of the table that it should be")
                  .arg(places().longValues.front()));
    EXPECT_EQ(errorWith(rowPlace(page, 1), page << 8 | 200), text("a page lacks a row"));
}

TEST_P(DamagedJet, HasNoMemoThatRunsInACircle) {
    BuiltTable table = builtPeople();
    table.memoPiece = 40;
    jet_ = builtJet(GetParam(), {table});
    const std::uint32_t page = places().longValues.front();
    // The last piece of the first memo leads nowhere, and its second to last to it.
    EXPECT_EQ(errorWith(rowPlace(page, 0), page << 8 | 1), text("a long value runs in a circle"));
    EXPECT_EQ(errorWith(rowPlace(page, 1), page << 8 | 1), text("a long value runs in a circle"));
    EXPECT_EQ(errorWith(rowPlace(page, 1), std::uint32_t{0}),
              text("a long value has not its length"));
    EXPECT_EQ(errorWith(rowPlace(page, 1), places().rows.front() << 8),
              text("a long value is not where it should be"));
}

TEST_P(DamagedJet, HasNoMapThatLeadsAstray) {
    const qsizetype map = rowPlace(places().map, 0);
    EXPECT_EQ(errorWith(map, std::uint8_t{2}), text("the map of a table is of no known kind"));
    EXPECT_EQ(errorWith(map + 1, std::uint32_t{0xFFFFFFFF}),
              text("a table has a page beyond every file"));
    EXPECT_EQ(errorWith(map + 1, std::uint32_t{0x10000}).section(u' ', 2),
              text("lies beyond its end"));
    // Bits are no numbers of pages of maps.
    EXPECT_EQ(errorWith(map, std::uint8_t{1}).section(u' ', 2), text("lies beyond its end"));
}

TEST_P(DamagedJet, WithALargeMapHasNoCircleEither) {
    BuiltTable table = builtPeople();
    table.hasLargeMap = true;
    jet_ = builtJet(GetParam(), {table});
    const qsizetype map = rowPlace(places().map, 0);
    // The page of the map once more, now for the pages behind.
    EXPECT_EQ(errorWith(map + 5, places().largeMap).section(u' ', 2), text("lies beyond its end"));
    EXPECT_EQ(errorWith(map + 1, std::uint32_t{0}), text("a table has 0 rows in place of 6"));
}

TEST_P(DamagedJet, HasNoDateThatIsNone) {
    const qsizetype date = rowPlace(places().rows.front(), 0) + (is4() ? 2 : 1) + 4;
    for (const double serial :
         {-657435.0, 2958466.0, 1e300, -std::numeric_limits<double>::infinity(),
          std::numeric_limits<double>::quiet_NaN()})
        EXPECT_EQ(errorWith(date, std::bit_cast<std::uint64_t>(serial)),
                  text("a date in it is none"));
    for (const double serial : {-657434.999, 2958465.999})
        EXPECT_EQ(errorWith(date, std::bit_cast<std::uint64_t>(serial)), QString());
}

TEST_P(DamagedJet, OfManyRowsTakesNoLongerThanOneThatIsWhole) {
    BuiltTable table = builtPeople();
    const std::vector<BuiltRow> rows = table.rows;
    while (table.rows.size() < 5000)
        table.rows.push_back(rows[table.rows.size() % 4]);
    table.rows.push_back({{9, text("Long"), 1.0, Value(false), longText(60'000)}});
    table.memoPiece = 20;
    table.hasLargeMap = true;
    jet_ = builtJet(GetParam(), {table});
    ASSERT_EQ(rowsNow(jet_.bytes), liveRows(table));
    std::mt19937 random(8);
    for (int round = 0; round < 20; ++round) {
        QElapsedTimer timer;
        timer.start();
        EXPECT_TRUE(canReadAnyJet(damaged(jet_.bytes, random)));
        EXPECT_LT(timer.elapsed(), kPatience);
    }
}

// Every row leads to the same memo, the largest that there is.
TEST_P(DamagedJet, GivesNoMoreThanItHolds) {
    BuiltTable table = builtPeople();
    table.rows.clear();
    for (int i = 0; i < 1000; ++i)
        table.rows.push_back({{i, Value(), Value(), Value(false), longText(70)}});
    table.rows.push_back({{1000, Value(), Value(), Value(false), longText(30'000)}});
    table.memoPiece = 4;
    table.hasLargeMap = true;
    jet_ = builtJet(GetParam(), {table});
    const int size = is4() ? 2 : 1;
    const qsizetype fields = size + 4 + 8;
    // The last row of the last page is the one with the large memo.
    const std::uint32_t last = places().rows.back();
    const QByteArray memo = jet_.bytes.mid(rowPlace(last, rowsOn(last) - 1) + fields, 12);
    for (const std::uint32_t page : places().rows) {
        for (int row = 0; row < rowsOn(page); ++row)
            jet_.bytes.replace(rowPlace(page, row) + fields, 12, memo);
    }
    expectMoreThanTheFile(peopleColumns());
}

// Every row that has moved leads to the same place, that of the longest.
TEST_P(DamagedJet, GivesNoRowAgainAndAgain) {
    BuiltTable table{text("Data"), {{text("Text"), JetType::Text, 255}}, {}};
    table.rows.push_back({{longText(250)}, BuiltRow::Moved});
    while (table.rows.size() < 2000)
        table.rows.push_back({{text("a")}, BuiltRow::Moved});
    jet_ = builtJet(GetParam(), {table});
    const QByteArray longest = jet_.bytes.mid(rowPlace(places().rows.front(), 0), 4);
    for (const std::uint32_t page : places().rows) {
        for (int row = 0; row < rowsOn(page); ++row) {
            if (slot(page, row) >> 14 == 1)
                jet_.bytes.replace(rowPlace(page, row), 4, longest);
        }
    }
    expectMoreThanTheFile({text("Text")});
}

TEST_P(DamagedJet, IsReadOrRefusedHoweverItIsDamaged) {
    readDamaged(jet_.bytes);
}

TEST_P(DamagedJet, IsReadOrRefusedHoweverASampleIsDamaged) {
    SKIP_WITHOUT_SAMPLES();
    readDamaged(fileBytes(samplePath(is4() ? "Names-jet4.mdb" : "Names-jet3.mdb")));
}

TEST_P(DamagedJet, IsReadOrRefusedInBytesOfAnyKind) {
    std::mt19937 random(8);
    for (int round = 0; round < 200; ++round) {
        QByteArray bytes = jet_.bytes.first(jet_.pageSize);
        for (int i = 0; i < 10 * jet_.pageSize; ++i)
            bytes += static_cast<char>(random());
        ASSERT_TRUE(canReadAnyJet(bytes)) << round;
    }
}

// A file of gigabytes that is empty but for its beginning, or whose map has all of its pages.
TEST_P(DamagedJet, OfGigabytesTakesLittleTimeAndMemory) {
    QTemporaryDir folder;
    const QString path = folder.filePath(text("sparse"));
    const long before = mostMemory();
    const qsizetype map = rowPlace(places().map, 0);
    QByteArray all = jet_.bytes;
    all.replace(map + 5, is4() ? 64 : 128, QByteArray(is4() ? 64 : 128, '\xFF'));
    for (const bool isMapFull : {false, true}) {
        makeFile(path, isMapFull ? all : jet_.bytes);
        if (!QFile::resize(path, qint64{4} * 1024 * 1024 * 1024))
            GTEST_SKIP() << "There can be no file of gigabytes here.";
        QElapsedTimer timer;
        timer.start();
        Rows rows;
        const int error = errorOf([&] { rows = rowsOf(JetFile(path), "Data", peopleColumns()); });
        EXPECT_LT(timer.elapsed(), kPatience);
        EXPECT_EQ(error, isMapFull ? 321 : 0);
        EXPECT_TRUE(isMapFull || rows == rows_);
    }
    EXPECT_LT(mostMemory() - before, 64);
}
