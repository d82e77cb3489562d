// Controls and the fields they are bound to.
#include "records/bound_fields.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>

#include "controls/date_picker.h"
#include "controls/multi_line_text_box.h"
#include "controls/text_box.h"
#include "cycles/calendar.h"
#include "store/databases.h"
#include "store/recordset.h"
#include "store/statements.h"
#include "support/errors.h"
#include "support/people.h"
#include "support/program_directory.h"
#include "support/recording_host.h"
#include "support/widget_driver.h"

using modCycles::DateSerial;

namespace {

// Anna Smith with everything, and Zed with what is required.
class BoundFieldsTest : public testing::Test {
  protected:
    BoundFieldsTest() {
        addCategory(directory_.people(), QStringLiteral("Family"));
        addPerson(directory_.people(), {.name = QStringLiteral("Smith"),
                                        .firstName = QStringLiteral("Anna"),
                                        .birthdate = Value(DateSerial(1972, 10, 20) + 0.75),
                                        .isFemale = true,
                                        .notes = QStringLiteral("One.\nTwo.")});
        addPerson(directory_.people(), {.name = QStringLiteral("Zed")});
        connection_ = std::make_unique<Connection>(openPersonDatabase());
        rows_ = std::make_unique<Recordset>(*connection_, statements::allPeopleWithNotes());
        fields_ = std::make_unique<BoundFields>(*rows_);
        fields_->bind(firstName_, QStringLiteral("FName"));
        fields_->bind(notes_, QStringLiteral("Notes"));
        fields_->bind(gender_, QStringLiteral("Gender"));
        fields_->bind(birthdate_, QStringLiteral("Birthdate"));
        fields_->bind(id_, QStringLiteral("NameID"));
        fields_->show();
    }

    // Nothing is pending, so nothing is written to a row that has changed meanwhile.
    void expectNothingPending() {
        runSql(directory_.people(), QStringLiteral("UPDATE Data SET Name = 'Changed'"));
        EXPECT_EQ(errorOf([&] { rows_->UpdateBatch(adAffectAll); }), 0);
    }

    void expectNothingShown() {
        EXPECT_EQ(firstName_.text(), QString());
        EXPECT_EQ(notes_.Text(), QString());
        EXPECT_FALSE(gender_.isChecked());
        EXPECT_TRUE(birthdate_.isEmpty());
        EXPECT_EQ(id_.text(), QString());
    }

    RecordingHost host_;
    ProgramDirectory directory_{host_};
    TextBox firstName_;
    MultiLineTextBox notes_;
    QCheckBox gender_;
    DatePicker birthdate_;
    QLabel id_;
    std::unique_ptr<Connection> connection_;
    std::unique_ptr<Recordset> rows_;
    std::unique_ptr<BoundFields> fields_;
};

TEST_F(BoundFieldsTest, ShowTheCurrentRow) {
    EXPECT_EQ(firstName_.text(), QStringLiteral("Anna"));
    EXPECT_EQ(firstName_.cursorPosition(), 0);
    EXPECT_EQ(notes_.Text(), QStringLiteral("One.\r\nTwo."));
    EXPECT_TRUE(gender_.isChecked());
    EXPECT_EQ(birthdate_.Value(), DateSerial(1972, 10, 20));
    EXPECT_EQ(id_.text(), QStringLiteral("1"));
    rows_->MoveNext();
    fields_->show();
    EXPECT_EQ(firstName_.text(), QString());
    EXPECT_EQ(notes_.Text(), QString());
    EXPECT_FALSE(gender_.isChecked());
    EXPECT_EQ(birthdate_.Value(), DateSerial(1980, 6, 15));
    EXPECT_EQ(id_.text(), QStringLiteral("2"));
}

TEST_F(BoundFieldsTest, WriteNothingByShowingARow) {
    rows_->MoveNext();
    fields_->show();
    rows_->MovePrevious();
    fields_->show();
    expectNothingPending();
}

TEST_F(BoundFieldsTest, WriteIntoTheRowWhatBecomesOfTheirControls) {
    firstName_.setText(QStringLiteral("Annabel"));
    notes_.setText(QStringLiteral("Three.\nFour."));
    gender_.setChecked(false);
    birthdate_.setSelectedSection(QDateTimeEdit::DaySection);
    type(birthdate_, QStringLiteral("7"));
    EXPECT_EQ(rows_->Fields(u"FName"), Value(QStringLiteral("Annabel")));
    EXPECT_EQ(rows_->Fields(u"Notes"), Value(QStringLiteral("Three.\r\nFour.")));
    EXPECT_EQ(rows_->Fields(u"Gender"), Value(0));
    EXPECT_EQ(rows_->Fields(u"Birthdate"), Value(DateSerial(1972, 10, 7)));
    gender_.setChecked(true);
    EXPECT_EQ(rows_->Fields(u"Gender"), Value(-1));
}

TEST_F(BoundFieldsTest, WriteNullForATextThatIsTakenAway) {
    firstName_.clear();
    notes_.clear();
    EXPECT_TRUE(rows_->Fields(u"FName").isNull());
    EXPECT_TRUE(rows_->Fields(u"Notes").isNull());
}

TEST_F(BoundFieldsTest, ShowWhatIsPendingWhenTheRowComesBack) {
    firstName_.setText(QStringLiteral("Annabel"));
    rows_->MoveNext();
    fields_->show();
    rows_->MovePrevious();
    fields_->show();
    EXPECT_EQ(firstName_.text(), QStringLiteral("Annabel"));
}

TEST_F(BoundFieldsTest, ShowNothingOffTheEndsAndOfANewRow) {
    rows_->MovePrevious();
    fields_->show();
    expectNothingShown();
    rows_->MoveLast();
    fields_->show();
    rows_->MoveNext();
    fields_->show();
    expectNothingShown();
    rows_->AddNew();
    fields_->show();
    expectNothingShown();
}

TEST_F(BoundFieldsTest, WriteNowhereWhileThereIsNoRow) {
    rows_->MovePrevious();
    fields_->show();
    firstName_.setText(QStringLiteral("nobody"));
    gender_.setChecked(true);
    expectNothingPending();
    EXPECT_TRUE(host_.messages().empty());
}

TEST_F(BoundFieldsTest, LetTheirControlsGo) {
    fields_.reset();
    firstName_.setText(QStringLiteral("free"));
    expectNothingPending();
}

}  // namespace
