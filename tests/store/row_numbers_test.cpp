// The numbers of an old table's rows.
#include "store/row_numbers.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "support/errors.h"
#include "support/old_tables.h"

namespace {

class RowNumbersTest : public testing::Test {
  protected:
    RowNumbersTest() { makeOld(10); }

    void makeOld(int lastNumber) {
        BuiltTable people = oldPeople({});
        people.lastNumber = lastNumber;
        makeFile(path_, builtJet(4, {people}).bytes);
    }

    QString refusalOf(const Value& number) {
        return descriptionOf([&] { numbers().take(number); })
            .remove(QStringLiteral(", ") + QDir::toNativeSeparators(path_));
    }

    RowNumbers& numbers() {
        if (!numbers_)
            numbers_.emplace(database_.emplace(path_), QStringLiteral("Data"),
                             QStringLiteral("NameID"));
        return *numbers_;
    }

  private:
    QTemporaryDir folder_;
    QString path_ = folder_.filePath(QStringLiteral("Ondara2.mdb"));
    std::optional<OldDatabase> database_;
    std::optional<RowNumbers> numbers_;
};

}  // namespace

TEST_F(RowNumbersTest, AreThoseOfTheRows) {
    EXPECT_EQ(numbers().take(7), 7);
    EXPECT_EQ(numbers().take(-7), -7);
}

TEST_F(RowNumbersTest, KnowTheLargestThatAnyRowHasHad) {
    EXPECT_EQ(numbers().largest(), 10);
    numbers().take(7);
    EXPECT_EQ(numbers().largest(), 10);
    numbers().take(11);
    numbers().take(3);
    EXPECT_EQ(numbers().largest(), 11);
}

// The next number must not be 0.
TEST_F(RowNumbersTest, HaveALargestThatIsNotBelowZero) {
    makeOld(-7);
    numbers().take(-3);
    EXPECT_EQ(numbers().largest(), 0);
}

TEST_F(RowNumbersTest, AreNeverNullNorZero) {
    const QString none = QStringLiteral("Invalid file format: a row of table Data has no NameID");
    EXPECT_EQ(refusalOf(Value()), none);
    EXPECT_EQ(refusalOf(0), none);
}

TEST_F(RowNumbersTest, AreNeverTheSame) {
    numbers().take(7);
    EXPECT_EQ(refusalOf(7),
              QStringLiteral("Invalid file format: two rows of table Data have the NameID 7"));
}
