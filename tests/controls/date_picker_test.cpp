// The date picker under the user's keys and its drop-down calendar.
#include "controls/date_picker.h"

#include <gtest/gtest.h>

#include <QCalendarWidget>
#include <QTableView>

#include "support/event_counter.h"
#include "support/recording_host.h"
#include "support/widget_driver.h"

using modCycles::DateSerial;

namespace {

class DatePickerTest : public testing::Test {
  protected:
    DatePickerTest() { picker_.show(); }

    RecordingHost host_;
    DatePicker picker_;
    EventCounter changes_{picker_, &DatePicker::Change};
};

}  // namespace

TEST_F(DatePickerTest, ShowsTheDateInItsFormWithTheNamesOfTheHost) {
    EXPECT_EQ(picker_.text(), QStringLiteral("14 March 2000"));
    EXPECT_EQ(picker_.CustomFormat(), QStringLiteral("d MMMM yyyy"));
    picker_.setCustomFormat(QStringLiteral("MMMM yyyy"));
    EXPECT_EQ(picker_.text(), QStringLiteral("March 2000"));
    EXPECT_EQ(picker_.CustomFormat(), QStringLiteral("MMMM yyyy"));
    EXPECT_EQ(picker_.Value(), DateSerial(2000, 3, 14));
    EXPECT_EQ(changes_.fired(), 0);
}

TEST_F(DatePickerTest, FiresChangeForAStepByKey) {
    pressKey(picker_, Qt::Key_Home);
    pressKey(picker_, Qt::Key_Up);
    EXPECT_EQ(picker_.Value(), DateSerial(2000, 3, 15));
    EXPECT_EQ(changes_.fired(), 1);
}

TEST_F(DatePickerTest, FiresChangeForADateThatIsTyped) {
    pressKey(picker_, Qt::Key_Home);
    picker_.setSelectedSection(QDateTimeEdit::DaySection);
    type(picker_, QStringLiteral("2"));
    EXPECT_EQ(picker_.Value(), DateSerial(2000, 3, 2));
    EXPECT_EQ(changes_.fired(), 1);
}

TEST_F(DatePickerTest, TakesNoYearThatIsTypedInPart) {
    picker_.setSelectedSection(QDateTimeEdit::YearSection);
    type(picker_, QStringLiteral("19"));
    EXPECT_EQ(picker_.Value(), DateSerial(2000, 3, 14));
    EXPECT_EQ(changes_.fired(), 0);
    type(picker_, QStringLiteral("67"));
    EXPECT_EQ(picker_.Value(), DateSerial(1967, 3, 14));
    EXPECT_EQ(changes_.fired(), 1);
}

TEST_F(DatePickerTest, FiresChangeForADayPickedFromItsCalendar) {
    click(picker_, {picker_.width() - 8, picker_.height() / 2});
    QCalendarWidget& calendar = *picker_.calendarWidget();
    ASSERT_TRUE(calendar.isVisible());
    auto& days = child<QTableView>(calendar, QStringLiteral("qt_calendar_calendarview"));
    pressKey(days, Qt::Key_Right);
    pressKey(days, Qt::Key_Return);
    EXPECT_FALSE(calendar.isVisible());
    EXPECT_EQ(picker_.Value(), DateSerial(2000, 3, 15));
    EXPECT_EQ(changes_.fired(), 1);
}

TEST_F(DatePickerTest, SpeaksTheLanguageOfTheHostInItsCalendarToo) {
    EXPECT_EQ(picker_.calendarWidget()->locale(), host_.locale());
}
