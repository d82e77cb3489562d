// The calendar as Ondara shows it.
#include "controls/quiet_calendar.h"

#include <gtest/gtest.h>

#include <QTextCharFormat>

#include "support/recording_host.h"

namespace {

class QuietCalendarTest : public testing::Test {
  protected:
    RecordingHost host_;
};

TEST_F(QuietCalendarTest, FollowsTheLocaleOfTheHost) {
    const QuietCalendar calendar;
    EXPECT_EQ(calendar.locale(), host_.locale());
    EXPECT_EQ(calendar.firstDayOfWeek(), Qt::Monday);
}

TEST_F(QuietCalendarTest, ShowsNoNumbersOfWeeks) {
    const QuietCalendar calendar;
    EXPECT_EQ(calendar.verticalHeaderFormat(), QCalendarWidget::NoVerticalHeader);
}

TEST_F(QuietCalendarTest, GivesWeekendsTheColourOfOtherDays) {
    QuietCalendar calendar;
    QPalette dark = calendar.palette();
    dark.setColor(QPalette::Text, Qt::white);
    calendar.setPalette(dark);
    for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday})
        EXPECT_EQ(calendar.weekdayTextFormat(day).foreground().color(), QColor(Qt::white));
}

}  // namespace
