// What the month calendar and the date picker do alike when code sets them.
#include "controls/date_control.h"

#include <gtest/gtest.h>

#include "controls/date_picker.h"
#include "controls/month_view.h"
#include "runtime/qt_dates.h"
#include "support/errors.h"
#include "support/event_counter.h"
#include "support/recording_host.h"

using modCycles::DateSerial;

namespace {

auto changeSignal(const MonthView*) {
    return &MonthView::SelChange;
}

auto changeSignal(const DatePicker*) {
    return &DatePicker::Change;
}

QDate shownDay(const MonthView& control) {
    return control.selectedDate();
}

QDate shownDay(const DatePicker& control) {
    return control.date();
}

template <class Widget>
class DateControls : public testing::Test {
  protected:
    void expectDay(Date day) {
        EXPECT_EQ(control_.Value(), day);
        EXPECT_EQ(shownDay(control_), toQDate(day));
        EXPECT_EQ(changes_.fired(), 0);
    }

    RecordingHost host_;
    Widget control_;
    EventCounter changes_{control_, changeSignal(&control_)};
};

using DateWidgets = testing::Types<MonthView, DatePicker>;

class WidgetName {
  public:
    template <class Widget>
    static std::string GetName(int) {
        return Widget::staticMetaObject.className();
    }
};

TYPED_TEST_SUITE(DateControls, DateWidgets, WidgetName);

}  // namespace

TYPED_TEST(DateControls, StartOnTodayWithTheWholeRange) {
    this->expectDay(DateSerial(2000, 3, 14));
    EXPECT_EQ(this->control_.MinDate(), DateSerial(1753, 1, 1));
}

TYPED_TEST(DateControls, ShowTheValueThatCodeSetsAndFireNothing) {
    this->control_.setValue(DateSerial(1867, 11, 7));
    this->expectDay(DateSerial(1867, 11, 7));
    EXPECT_EQ(this->control_.Day(), 7);
    EXPECT_EQ(this->control_.Month(), 11);
    EXPECT_EQ(this->control_.Year(), 1867);
}

TYPED_TEST(DateControls, ReachFromTheFirstDayOf1753ToTheLastOf9999) {
    this->control_.setValue(DateSerial(1753, 1, 1));
    this->expectDay(DateSerial(1753, 1, 1));
    this->control_.setValue(DateSerial(9999, 12, 31));
    this->expectDay(DateSerial(9999, 12, 31));
}

TYPED_TEST(DateControls, DropTheTimeOfAValue) {
    this->control_.setValue(DateSerial(2000, 3, 14) + 0.75);
    this->expectDay(DateSerial(2000, 3, 14));
}

TYPED_TEST(DateControls, ChangeTheDayWithinTheMonthAndFireNothing) {
    this->control_.setDay(1);
    this->expectDay(DateSerial(2000, 3, 1));
    this->control_.setDay(31);
    this->expectDay(DateSerial(2000, 3, 31));
}

TYPED_TEST(DateControls, RefuseADayThatTheMonthDoesNotHave) {
    this->control_.setValue(DateSerial(2001, 2, 14));
    for (const Integer day : {Integer{0}, Integer{29}, Integer{32}})
        EXPECT_EQ(errorOf([&] { this->control_.setDay(day); }), 380);
    this->expectDay(DateSerial(2001, 2, 14));
}

TYPED_TEST(DateControls, RaiseTheValueToAMinDateAboveIt) {
    this->control_.setMinDate(DateSerial(2005, 6, 1));
    this->expectDay(DateSerial(2005, 6, 1));
    EXPECT_EQ(this->control_.MinDate(), DateSerial(2005, 6, 1));
}

TYPED_TEST(DateControls, LeaveTheValueWhereTheMinDateIsNotAboveIt) {
    this->control_.setMinDate(DateSerial(2000, 3, 14));
    this->expectDay(DateSerial(2000, 3, 14));
    this->control_.setMinDate(DateSerial(1753, 1, 1));
    this->expectDay(DateSerial(2000, 3, 14));
}

TYPED_TEST(DateControls, ClampAValueBelowTheMinDateToIt) {
    this->control_.setMinDate(DateSerial(1990, 1, 1));
    this->control_.setValue(DateSerial(1989, 12, 31));
    this->expectDay(DateSerial(1990, 1, 1));
    this->control_.setMinDate(DateSerial(1753, 1, 1));
    this->control_.setValue(DateSerial(1600, 1, 1));
    this->expectDay(DateSerial(1753, 1, 1));
}

TYPED_TEST(DateControls, RefuseAMinDateBefore1753) {
    EXPECT_EQ(errorOf([&] { this->control_.setMinDate(DateSerial(1752, 12, 31)); }), 380);
    EXPECT_EQ(this->control_.MinDate(), DateSerial(1753, 1, 1));
}

TYPED_TEST(DateControls, AreNotAskedForADayAfter9999AsThereIsNoSuchDate) {
    this->control_.setValue(DateSerial(9999, 12, 31));
    EXPECT_THROW(this->control_.setValue(this->control_.Value() + 1), std::overflow_error);
    this->expectDay(DateSerial(9999, 12, 31));
}
