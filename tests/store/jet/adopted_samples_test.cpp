// The sample databases, adopted: every person in them comes out as the description says.
#include <gtest/gtest.h>

#include <algorithm>

#include "store/adoption.h"
#include "store/databases.h"
#include "store/jet/samples.h"
#include "store/recordset.h"
#include "store/statements.h"
#include "support/people.h"
#include "support/printing.h"
#include "support/program_directory.h"
#include "support/recording_host.h"

namespace {

class AdoptedSamples : public testing::Test {
  protected:
    void SetUp() override {
        SKIP_WITHOUT_SAMPLES();
        tables_ = describedTables("Ondara2-jet4.mdb");
        ASSERT_EQ(tables_.size(), 2U);
    }

    std::optional<Adoption> adopt(const char* name) {
        QFile::remove(directory_.people());
        QFile::copy(samplePath(name), directory_.people());
        QFile::setPermissions(directory_.people(), QFile::ReadOwner | QFile::WriteOwner);
        return adoptPeople();
    }

    Rows& people() { return tables_[1].rows; }
    static Long idOf(const std::vector<Value>& person) { return person.front().toLong(); }

    // What is described, as the store holds it: with a category for everybody, with no name in
    // place of none, and without those who have no birth date.
    Rows expectedPeople() {
        Rows expected = people();
        std::erase_if(expected, [](const auto& person) { return person[3].isNull(); });
        for (std::vector<Value>& person : expected) {
            person[1] = textOrNothing(person[1]);
            if (person[5].isNull() || person[5] == Value(0))
                person[5] = 100;
        }
        return expected;
    }

    void expectAdopted() {
        Connection connection = openPersonDatabase();
        Recordset adopted(connection, statements::wholeTable());
        const Rows expected = expectedPeople();
        ASSERT_EQ(adopted.RecordCount(), static_cast<Long>(expected.size()));
        for (const std::vector<Value>& person : expected) {
            for (std::size_t field = 0; field < person.size(); ++field) {
                EXPECT_TRUE(adopted.Fields(tables_[1].fields[static_cast<qsizetype>(field)]) ==
                            person[field])
                    << "field " << field << " of " << idOf(person);
            }
            adopted.MoveNext();
        }
    }

    void expectCategories() {
        Rows expected = tables_[0].rows;
        expected.push_back({99, QStringLiteral("Unknown (99)")});
        expected.push_back({100, QStringLiteral("Unknown")});
        Connection connection = openPersonDatabase();
        Recordset adopted(connection, statements::categories());
        ASSERT_EQ(adopted.RecordCount(), static_cast<Long>(expected.size()));
        for (const std::vector<Value>& category : expected) {
            EXPECT_EQ(adopted.Fields(u"CatID"), category[0]);
            EXPECT_EQ(adopted.Fields(u"Category"), category[1]);
            adopted.MoveNext();
        }
    }

    RecordingHost host_;
    ProgramDirectory directory_{host_};
    std::vector<DescribedTable> tables_;
};

}  // namespace

TEST_F(AdoptedSamples, HaveEverybodyWithEveryField) {
    ASSERT_EQ(people().size(), 40U);
    const std::optional<Adoption> adoption = adopt("Ondara2-jet4.mdb");
    ASSERT_TRUE(adoption);
    expectAdopted();
    expectCategories();
    EXPECT_TRUE(adoption->leftOut.text().endsWith(
        QStringLiteral("\r\n\r\nNameID: 12\r\nName: Brown\r\nFName: Ann\r\nGender: female\r\n"
                       "CatID: 1 (Family)\r\nNotes: No date.\r\n")))
        << adoption->leftOut.text().toStdString();
    EXPECT_EQ(addPerson(directory_.people(), {.name = QStringLiteral("New")}), 253);
    EXPECT_EQ(addCategory(directory_.people(), QStringLiteral("New")), 101);
}

TEST_F(AdoptedSamples, HaveEverybodyInTheOlderFormatToo) {
    std::erase_if(people(), [](const auto& person) {
        return idOf(person) == 14 || idOf(person) == 15 || idOf(person) == 26;
    });
    ASSERT_EQ(people().size(), 37U);
    ASSERT_TRUE(adopt("Ondara2-jet3.mdb"));
    expectAdopted();
    expectCategories();
}
