// The opening of Jet files, and what other programs find in those that the tests make.
#include "store/jet/jet_file.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "store/jet/jet_reading.h"
#include "support/errors.h"
#include "support/files.h"
#include "support/other_programs.h"
#include "support/printing.h"

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace {

// Both formats.
class JetFiles : public testing::TestWithParam<int> {
  protected:
    QString path(const char* name = "file") const { return folder_.filePath(text(name)); }

    QString opening(const char* name = "file") const {
        return descriptionOf([&] { JetFile{path(name)}; });
    }

    QString behindPath(const char* cause, const char* name = "file") const {
        return text(cause) + QStringLiteral(", ") + QDir::toNativeSeparators(path(name));
    }

    QTemporaryDir folder_;
};

// A value as mdb-export is told to write it.
QString exported(const Value& value, JetType type) {
    if (value.isNull())
        return QStringLiteral("NULL");
    if (type == JetType::Boolean)
        return value.toBoolean() ? QStringLiteral("1") : QStringLiteral("0");
    if (type == JetType::Date)
        return value.toDate().serial() == 20514 ? QStringLiteral("\"1956-02-29 00:00:00\"")
                                                : QStringLiteral("\"2024-12-31 12:00:00\"");
    if (const auto* words = std::get_if<QString>(&value.content()))
        return u'"' + *words + u'"';
    return QString::number(value.toLong());
}

INSTANTIATE_TEST_SUITE_P(JetFile, JetFiles, testing::Values(3, 4));

}  // namespace

TEST_P(JetFiles, GiveTheirTablesAndRows) {
    const BuiltTable people = builtPeople();
    const BuiltTable categories{
        text("Category"), {{text("CatID"), JetType::Int32}}, {{{3}}, {{1}}}};
    makeFile(path(), builtJet(GetParam(), {people, categories}).bytes);
    const JetFile file(path());
    EXPECT_EQ(file.tables(), list({"Data", "Category"}));
    EXPECT_EQ(columnNames(file.table(text("Data"))), peopleColumns());
    EXPECT_EQ(rowsOf(file, "Data", peopleColumns()), liveRows(people));
    EXPECT_EQ(rowsOf(file, "Category", list({"CatID"})), (Rows{{3}, {1}}));
}

TEST_P(JetFiles, AreReadFromBytesAsWell) {
    const JetFile file(builtJet(GetParam(), {builtPeople()}).bytes, text("name"));
    EXPECT_EQ(rowsOf(file, "Data", list({"NameID"})).size(), 6U);
    EXPECT_EQ(descriptionOf([&] { file.table(text("People")); }),
              text("Automation error: there is no table People, name"));
}

TEST_P(JetFiles, FindNamesWithoutRegardToCaseAndColumnsInAnyOrder) {
    const JetFile file(builtJet(GetParam(), {builtPeople()}).bytes, text("name"));
    EXPECT_EQ(rowsOf(file, "dATA", list({"BIRTHDATE", "nameid"})).front(),
              (std::vector<Value>{20514.0, 1}));
    EXPECT_EQ(descriptionOf([&] {
                  rowsOf(file, "Data", list({"NameID", "Born"}));
              }),
              text("Automation error: there is no field Born in table Data, name"));
}

TEST_P(JetFiles, RefuseColumnsOfOtherKinds) {
    BuiltTable table = builtPeople();
    table.columns[2].type = JetType::Guid;
    const JetFile file(builtJet(GetParam(), {table}).bytes, text("name"));
    EXPECT_EQ(
        descriptionOf([&] { rowsOf(file, "Data", list({"Birthdate"})); }),
        text("Type mismatch: field Birthdate of table Data is no number, text or date, name"));
}

TEST_P(JetFiles, StayOpenForTheirTablesAndRows) {
    JetRows rows = JetFile(builtJet(GetParam(), {builtPeople()}).bytes, text("name"))
                       .table(text("Data"))
                       .rows(list({"NameID"}));
    EXPECT_TRUE(rows.next());
    EXPECT_EQ(rows.values().front(), Value(1));
}

TEST_P(JetFiles, AreKnownByTheirBeginning) {
    makeFile(path(), builtJet(GetParam(), {}).bytes);
    EXPECT_TRUE(isJetFile(path()));
    makeFile(path("text"), "A text of more than nineteen characters.");
    EXPECT_FALSE(isJetFile(path("text")));
    EXPECT_FALSE(isJetFile(path("none")));
    EXPECT_FALSE(isJetFile(folder_.path()));
    EXPECT_EQ(opening("text"), behindPath("Invalid file format: it is no Jet database", "text"));
}

TEST_P(JetFiles, ThatAreNoneAreRefused) {
    EXPECT_EQ(opening("none"), behindPath("File not found: there is no file of this name", "none"));
    EXPECT_EQ(opening("."), behindPath("Path/File access error: it is a folder", "."));
    makeFile(path());
    EXPECT_EQ(opening(), behindPath("Invalid file format: the file is empty"));
    makeFile(path(), "Standard");
    EXPECT_EQ(opening(), behindPath("Invalid file format: it is no Jet database"));
}

TEST_P(JetFiles, ThatMayNotBeReadAreRefused) {
    makeFile(path(), builtJet(GetParam(), {}).bytes);
    QFile::setPermissions(path(), QFile::WriteOwner);
    if (QFile file(path()); file.open(QIODevice::ReadOnly))
        GTEST_SKIP() << "This user may read whatever the permissions say";
    EXPECT_EQ(opening(), behindPath("Path/File access error: Permission denied"));
    EXPECT_FALSE(isJetFile(path()));
}

#ifdef Q_OS_UNIX
TEST_P(JetFiles, ThatNeverEndAreRefused) {
    ASSERT_EQ(mkfifo(path().toUtf8().constData(), S_IRUSR | S_IWUSR), 0);
    EXPECT_EQ(opening(), behindPath("Path/File access error: it is no file"));
    EXPECT_FALSE(isJetFile(path()));
    EXPECT_EQ(descriptionOf([] { JetFile{text("/dev/zero")}; }),
              text("Path/File access error: it is no file, /dev/zero"));
}
#endif

TEST_P(JetFiles, WithACatalogThatMakesNoSenseAreRefused) {
    BuiltJet jet = builtJet(GetParam(), {builtPeople()});
    const QByteArray name = GetParam() == 4 ? QByteArray("T\0y\0p\0e", 7) : QByteArray("Type");
    const qsizetype place = jet.bytes.indexOf(name, jet.place(2));
    QByteArray other = jet.bytes;
    other.replace(place, 1, "X");
    EXPECT_EQ(errorOf([&] { JetFile(other, text("name")); }), 440);

    // Its first column is the table's number: made a date, it is none.
    const qsizetype type = jet.place(2, GetParam() == 4 ? 63 : 43);
    jet.bytes[type] = static_cast<char>(JetType::Single);
    EXPECT_EQ(descriptionOf([&] { JetFile(jet.bytes, text("name")); }),
              text("Invalid file format: the file is damaged, its catalog makes no sense, name"));
}

// Every one of them would be kept.
TEST_P(JetFiles, WithMoreTablesThanThereCanBeAreRefused) {
    const auto entryOf = [](int id) { return BuiltRow{{id, text("T"), 1, 0}}; };
    BuiltTable catalog{text("Catalog"),
                       {{text("Id"), JetType::Int32},
                        {text("Name"), JetType::Text, 9},
                        {text("Type"), JetType::Int16},
                        {text("Flags"), JetType::Int32}},
                       {}};
    catalog.hasLargeMap = true;
    for (const int more : {0, 1}) {
        while (catalog.rows.size() < static_cast<std::size_t>(32'768 + more))
            catalog.rows.push_back(entryOf(3));
        BuiltJet jet = builtJet(GetParam(), {catalog});
        // The table takes the place of the file's own catalog.
        const BuiltPlaces& places = jet.tables.front();
        for (const std::uint32_t page : places.rows)
            jet.bytes[jet.place(page, 4)] = 2;
        jet.bytes.replace(jet.place(2), jet.pageSize,
                          jet.bytes.mid(jet.place(places.definition), jet.pageSize));
        EXPECT_EQ(descriptionOf([&] { JetFile(jet.bytes, text("name")); }),
                  more == 0 ? QString()
                            : text("Invalid file format: the file is damaged, its catalog has no "
                                   "end, name"));
    }
}

// The other one does not tell Null from "", and puts rows that have moved where they lie.
TEST_P(JetFiles, HoldWhatAnotherReaderFindsInThem) {
    SKIP_WITHOUT("mdb-export");
    BuiltTable table = builtPeople();
    table.rows = {{{1, text("Doe"), 20514.0, Value(true), text("Likes tea.")}},
                  {{2, text("Éloïse €"), 45657.5, Value(false), longText(700)}},
                  {{4, Value(), Value(), Value(false), Value()}},
                  {{5, text("Long"), 20514.0, Value(true), longText(6000)}}};
    for (const bool isOther : {false, true}) {
        table.hasLargeMap = isOther;
        table.hasCompressedTexts = isOther;
        makeFile(path("made.mdb"), builtJet(GetParam(), {table}).bytes);
        QStringList lines{peopleColumns().join(u',')};
        for (const BuiltRow& row : table.rows) {
            QStringList cells;
            for (std::size_t i = 0; i < row.values.size(); ++i)
                cells += exported(row.values[i], table.columns[i].type);
            lines += cells.join(u',');
        }
        const QByteArray output = outputOf(
            "mdb-export",
            list({"-0", "NULL", "-R", "\x1E", "-T", "%Y-%m-%d %H:%M:%S", "made.mdb", "Data"}),
            folder_.path());
        EXPECT_EQ(QString::fromUtf8(output), lines.join(QChar(0x1E)) + QChar(0x1E)) << isOther;
        EXPECT_EQ(outputOf("mdb-tables", list({"-1", "made.mdb"}), folder_.path()),
                  QByteArray("Data\n"));
    }
}
