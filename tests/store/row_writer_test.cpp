// The writing of single rows.
#include "store/row_writer.h"

#include <SQLiteCpp/Database.h>
#include <gtest/gtest.h>

#include "runtime/errors.h"
#include "support/printing.h"

namespace {

constexpr int kId = 0;
constexpr int kText = 1;

class RowWriterTest : public testing::Test {
  protected:
    RowWriterTest() { database_.exec("CREATE TABLE T (Id INTEGER PRIMARY KEY, Word TEXT)"); }

    const Cell* insert(const char* word) {
        return writer_.insert({{kText, Value(QString::fromUtf8(word))}});
    }

    std::string wordsInStore() {
        return database_.execAndGet("SELECT group_concat(Word) FROM T").getString();
    }

    SQLite::Database database_{":memory:", SQLite::OPEN_READWRITE};
    RowTable table_{2};
    RowWriter writer_{database_, {.name = "T", .columns = {"Id", "Word"}, .keyField = kId}, table_};
};

TEST_F(RowWriterTest, AnswersAnInsertedRowWithItsKey) {
    const Cell* row = insert("one");
    EXPECT_EQ(row[kId].value().toLong(), 1);
    EXPECT_EQ(row[kText].value().toText(), QStringLiteral("one"));
    EXPECT_EQ(wordsInStore(), "one");
}

TEST_F(RowWriterTest, ChangesTheRowThatWasRead) {
    insert("one");
    const Cell* second = insert("two");
    const Cell* changed = writer_.update(second, {{kText, Value(QStringLiteral("zwei"))}});
    EXPECT_EQ(changed[kText].value().toText(), QStringLiteral("zwei"));
    EXPECT_EQ(wordsInStore(), "one,zwei");
}

TEST_F(RowWriterTest, FindsNoRowThatHasChangedByALetter) {
    const Cell* row = insert("one");
    database_.exec("UPDATE T SET Word = 'One'");
    EXPECT_THROW(writer_.update(row, {{kText, Value(QStringLiteral("eins"))}}), RuntimeError);
    EXPECT_THROW(writer_.remove(row), RuntimeError);
    EXPECT_EQ(wordsInStore(), "One");
}

TEST_F(RowWriterTest, RemovesTheRowThatWasRead) {
    const Cell* first = insert("one");
    insert("two");
    writer_.remove(first);
    EXPECT_EQ(wordsInStore(), "two");
}

}  // namespace
