// The month calendar under the user's mouse and keys.
#include "controls/month_view.h"

#include <gtest/gtest.h>

#include <QTableView>
#include <QToolButton>

#include "support/event_counter.h"
#include "support/recording_host.h"
#include "support/widget_driver.h"

using modCycles::DateSerial;

namespace {

class MonthViewTest : public testing::Test {
  protected:
    MonthViewTest() {
        calendar_.resize(240, 170);
        calendar_.show();
    }

    QTableView& days() {
        return child<QTableView>(calendar_, QStringLiteral("qt_calendar_calendarview"));
    }

    // The row and column on the page: March 2000 begins on a Wednesday.
    void clickDay(int row, int column) {
        const QModelIndex day = days().model()->index(row, column);
        click(*days().viewport(), days().visualRect(day).center());
    }

    RecordingHost host_;
    MonthView calendar_;
    EventCounter picks_{calendar_, &MonthView::SelChange};
};

}  // namespace

TEST_F(MonthViewTest, FiresSelChangeOnceForADayThatIsClicked) {
    clickDay(2, 3);
    EXPECT_EQ(calendar_.Value(), DateSerial(2000, 3, 9));
    EXPECT_EQ(picks_.fired(), 1);
}

TEST_F(MonthViewTest, FiresNothingForTheDayThatIsSelectedAlready) {
    clickDay(3, 1);
    EXPECT_EQ(calendar_.Value(), DateSerial(2000, 3, 14));
    EXPECT_EQ(picks_.fired(), 0);
}

TEST_F(MonthViewTest, FiresSelChangeForADayPickedByKey) {
    pressKey(days(), Qt::Key_Right);
    EXPECT_EQ(calendar_.Value(), DateSerial(2000, 3, 15));
    EXPECT_EQ(picks_.fired(), 1);
}

TEST_F(MonthViewTest, PicksNothingWhenThePageIsTurned) {
    click(child<QToolButton>(calendar_, QStringLiteral("qt_calendar_nextmonth")));
    EXPECT_EQ(calendar_.monthShown(), 4);
    EXPECT_EQ(calendar_.Value(), DateSerial(2000, 3, 14));
    EXPECT_EQ(picks_.fired(), 0);
}

TEST_F(MonthViewTest, TurnsBackToTheMonthOfAValueThatCodeSetsAgain) {
    calendar_.showNextYear();
    calendar_.setValue(calendar_.Value());
    EXPECT_EQ(calendar_.yearShown(), 2000);
    EXPECT_EQ(calendar_.monthShown(), 3);
}

TEST_F(MonthViewTest, PicksNoDayBeforeTheMinDate) {
    calendar_.setMinDate(DateSerial(2000, 3, 10));
    clickDay(2, 3);
    EXPECT_EQ(calendar_.Value(), DateSerial(2000, 3, 14));
    EXPECT_EQ(picks_.fired(), 0);
    clickDay(2, 4);
    EXPECT_EQ(calendar_.Value(), DateSerial(2000, 3, 10));
    EXPECT_EQ(picks_.fired(), 1);
}

TEST_F(MonthViewTest, SpeaksTheLanguageOfTheHostAndBeginsTheWeekAsItDoes) {
    EXPECT_EQ(calendar_.locale(), host_.locale());
    EXPECT_EQ(calendar_.firstDayOfWeek(), Qt::Monday);
    EXPECT_EQ(child<QToolButton>(calendar_, QStringLiteral("qt_calendar_monthbutton")).text(),
              QStringLiteral("March"));
}

TEST_F(MonthViewTest, FitsBesideTheButtonsBelowTheChart) {
    EXPECT_LE(calendar_.minimumSizeHint().width(), 300);
    EXPECT_LE(calendar_.minimumSizeHint().height(), 200);
}
