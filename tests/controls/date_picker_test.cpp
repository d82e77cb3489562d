// The date picker under the user's keys and its drop-down calendar.
#include "controls/date_picker.h"

#include <gtest/gtest.h>

#include <QCalendarWidget>
#include <QCoreApplication>
#include <QFocusEvent>
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

// A form may look at other dates by the control while it hears of a change.
TEST_F(DatePickerTest, GoesOnBeingTypedInWhenItsChangeMovesItThereAndBack) {
    QObject::connect(&picker_, &DatePicker::Change, [this] {
        const Integer day = picker_.Day();
        picker_.setDay(1);
        picker_.setDay(day);
    });
    picker_.setSelectedSection(QDateTimeEdit::DaySection);
    type(picker_, QStringLiteral("25"));
    EXPECT_EQ(picker_.Value(), DateSerial(2000, 3, 25));
    EXPECT_EQ(picker_.text(), QStringLiteral("25 March 2000"));
    EXPECT_EQ(changes_.fired(), 2);
}

TEST_F(DatePickerTest, ShowsTheDateOnWhichItsChangeLeavesIt) {
    QObject::connect(&picker_, &DatePicker::Change, [this] { picker_.setDay(1); });
    pressKey(picker_, Qt::Key_Home);
    pressKey(picker_, Qt::Key_Up);
    EXPECT_EQ(picker_.Value(), DateSerial(2000, 3, 1));
    EXPECT_EQ(picker_.text(), QStringLiteral("1 March 2000"));
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

class EmptyDatePicker : public DatePickerTest {
  protected:
    EmptyDatePicker() { picker_.setEmpty(); }

    void expectDate(Date date, const QString& text) {
        EXPECT_FALSE(picker_.isEmpty());
        EXPECT_EQ(picker_.Value(), date);
        EXPECT_EQ(picker_.text(), text);
    }

    QTableView& daysOfOpenedCalendar() {
        click(picker_, {picker_.width() - 8, picker_.height() / 2});
        return child<QTableView>(*picker_.calendarWidget(),
                                 QStringLiteral("qt_calendar_calendarview"));
    }
};

TEST_F(EmptyDatePicker, ShowsNothingAndFiresNothing) {
    EXPECT_TRUE(picker_.isEmpty());
    EXPECT_EQ(picker_.text().trimmed(), QString());
    EXPECT_EQ(picker_.Value(), DateSerial(2000, 3, 14));
    EXPECT_EQ(changes_.fired(), 0);
}

TEST_F(EmptyDatePicker, HasADateAgainWhenCodeSetsOne) {
    for (const Date date : {DateSerial(1753, 1, 1), DateSerial(2000, 3, 14)}) {
        picker_.setValue(date);
        EXPECT_FALSE(picker_.isEmpty());
        EXPECT_EQ(picker_.Value(), date);
        EXPECT_EQ(picker_.minimumDate(), QDate(1753, 1, 1));
        picker_.setEmpty();
        picker_.setEmpty();
        EXPECT_TRUE(picker_.isEmpty());
    }
    EXPECT_EQ(changes_.fired(), 0);
}

TEST_F(EmptyDatePicker, IsEmptyAgainWhenItsChangeEmptiesIt) {
    QObject::connect(&picker_, &DatePicker::Change, [this] { picker_.setEmpty(); });
    type(picker_, QStringLiteral("7"));
    EXPECT_TRUE(picker_.isEmpty());
    EXPECT_EQ(picker_.text().trimmed(), QString());
    EXPECT_EQ(changes_.fired(), 1);
}

TEST_F(EmptyDatePicker, BeginsTodayWithADayThatIsTyped) {
    type(picker_, QStringLiteral("7"));
    expectDate(DateSerial(2000, 3, 7), QStringLiteral("7 March 2000"));
    EXPECT_GE(changes_.fired(), 1);
}

TEST_F(EmptyDatePicker, FiresChangeAlsoForTodaysDayTyped) {
    type(picker_, QStringLiteral("14"));
    expectDate(DateSerial(2000, 3, 14), QStringLiteral("14 March 2000"));
    EXPECT_GE(changes_.fired(), 1);
}

TEST_F(EmptyDatePicker, BeginsTodayWithAStepEitherWay) {
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down}) {
        picker_.setEmpty();
        picker_.stepBy(key == Qt::Key_Up ? 1 : -1);
        expectDate(DateSerial(2000, 3, 14), QStringLiteral("14 March 2000"));
    }
    EXPECT_EQ(changes_.fired(), 2);
    picker_.setEmpty();
    pressKey(picker_, Qt::Key_Up);
    expectDate(DateSerial(2000, 3, 14), QStringLiteral("14 March 2000"));
}

TEST_F(EmptyDatePicker, StaysEmptyForKeysThatTypeNothing) {
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Home, Qt::Key_Return, Qt::Key_Escape})
        pressKey(picker_, key);
    EXPECT_TRUE(picker_.isEmpty());
    EXPECT_EQ(changes_.fired(), 0);
}

TEST_F(EmptyDatePicker, StaysEmptyWhenTheUserPassesThrough) {
    for (const auto type : {QEvent::FocusIn, QEvent::FocusOut}) {
        QFocusEvent focus(type, Qt::TabFocusReason);
        QCoreApplication::sendEvent(&picker_, &focus);
    }
    EXPECT_TRUE(picker_.isEmpty());
    EXPECT_EQ(changes_.fired(), 0);
}

TEST_F(EmptyDatePicker, OpensItsCalendarOnTodayAndTakesTodayFromIt) {
    QTableView& days = daysOfOpenedCalendar();
    EXPECT_EQ(picker_.calendarWidget()->selectedDate(), QDate(2000, 3, 14));
    EXPECT_EQ(picker_.calendarWidget()->monthShown(), 3);
    EXPECT_TRUE(picker_.isEmpty());
    pressKey(days, Qt::Key_Return);
    expectDate(DateSerial(2000, 3, 14), QStringLiteral("14 March 2000"));
    EXPECT_EQ(changes_.fired(), 1);
}

TEST_F(EmptyDatePicker, TakesAnotherDayFromItsCalendar) {
    QTableView& days = daysOfOpenedCalendar();
    pressKey(days, Qt::Key_Right);
    pressKey(days, Qt::Key_Return);
    expectDate(DateSerial(2000, 3, 15), QStringLiteral("15 March 2000"));
    EXPECT_EQ(changes_.fired(), 1);
}

TEST_F(EmptyDatePicker, StaysEmptyWhenItsCalendarIsClosedWithoutAChoice) {
    pressKey(daysOfOpenedCalendar(), Qt::Key_Escape);
    EXPECT_TRUE(picker_.isEmpty());
    EXPECT_EQ(picker_.text().trimmed(), QString());
    EXPECT_EQ(changes_.fired(), 0);
}

TEST_F(EmptyDatePicker, KeepsAMinDateThatIsSetMeanwhile) {
    picker_.setMinDate(DateSerial(2000, 3, 1));
    EXPECT_TRUE(picker_.isEmpty());
    picker_.setValue(DateSerial(1990, 1, 1));
    EXPECT_EQ(picker_.Value(), DateSerial(2000, 3, 1));
    EXPECT_EQ(picker_.minimumDate(), QDate(2000, 3, 1));
}

TEST_F(DatePickerTest, IsLegibleWhereItIsDisabled) {
    QWidget window;
    const auto* picker = new DatePicker(&window);
    for (const QColor ink : {QColor(Qt::black), QColor(Qt::white)}) {
        QPalette palette;
        palette.setColor(QPalette::Active, QPalette::Text, ink);
        palette.setColor(QPalette::Disabled, QPalette::Text, Qt::gray);
        window.setPalette(palette);
        EXPECT_EQ(picker->palette().color(QPalette::Disabled, QPalette::Text), ink);
    }
}
