// The birthday calendar.
#include "analyses/frmBirthdayToday.h"

#include <QHeaderView>
#include <QLabel>

#include "controls/date_picker.h"
#include "controls/list_view.h"
#include "controls/picture_button.h"
#include "controls/pictures.h"
#include "cycles/calendar.h"
#include "runtime/event.h"
#include "shell/frmMain.h"
#include "support/errors.h"
#include "support/main_window.h"

using modCycles::DateSerial;

namespace {

class BirthdayCalendar : public MainWindowTest {
  protected:
    void add(const char* name, Date birthdate) {
        addPerson({.name = QString::fromUtf8(name), .birthdate = Value(birthdate)});
    }

    // Opens it over the main window, with nobody chosen.
    void open() {
        load();
        form_ = std::make_unique<frmBirthdayToday>(&window());
        runEvent([this] { form_->Show(); });
    }

    template <class Control>
    Control& of(const char* name) {
        return child<Control>(*form_, QString::fromLatin1(name));
    }

    // Changes the date as the user does, who goes past the control's own operations.
    void pick(Date date) {
        const QDate day(modCycles::Year(date), modCycles::Month(date), modCycles::Day(date));
        static_cast<QDateEdit&>(of<DatePicker>("dtpBDayToday")).setDate(day);
    }

    void clickHeader(int column) { Q_EMIT of<ListView>("lvBDays").ColumnClick(column); }

    // "name|age" of each row.
    QStringList rows() {
        const QAbstractItemModel& model = *of<ListView>("lvBDays").model();
        QStringList rows;
        for (int i = 0; i < model.rowCount(); ++i)
            rows +=
                model.index(i, 0).data().toString() + u'|' + model.index(i, 1).data().toString();
        return rows;
    }

    std::unique_ptr<frmBirthdayToday> form_;
};

TEST_F(BirthdayCalendar, OpensOnToday) {
    add("Adler", DateSerial(1972, 3, 14));
    open();
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Birthday Calendar"));
    EXPECT_EQ(of<DatePicker>("dtpBDayToday").Value(), DateSerial(2000, 3, 14));
    EXPECT_EQ(of<DatePicker>("dtpBDayToday").CustomFormat(), QStringLiteral("d MMMM yyyy"));
    EXPECT_EQ(rows(), QStringList(QStringLiteral("Adler|28")));
}

TEST_F(BirthdayCalendar, OpensOnTheDayOnWhichItIsLoaded) {
    frmBirthdayToday form(&load());
    host_.setNow(DateSerial(2000, 3, 15));
    form.Load();
    EXPECT_EQ(child<DatePicker>(form, QStringLiteral("dtpBDayToday")).Value(),
              DateSerial(2000, 3, 15));
}

TEST_F(BirthdayCalendar, CallsItsControlsByTheirTexts) {
    open();
    EXPECT_EQ(of<QLabel>("Label1").text(), QStringLiteral("Birthday calendar"));
    EXPECT_EQ(of<QLabel>("Label2").text(), QStringLiteral("Click a column to sort"));
    EXPECT_EQ(of<PictureButton>("cmdClose").text(), QStringLiteral("Close"));
    const QAbstractItemModel& model = *of<ListView>("lvBDays").model();
    EXPECT_EQ(model.headerData(0, Qt::Horizontal).toString(), QStringLiteral("Name"));
    EXPECT_EQ(model.headerData(1, Qt::Horizontal).toString(), QStringLiteral("Age"));
    EXPECT_EQ(model.columnCount(), 2);
}

TEST_F(BirthdayCalendar, ListsThoseOfTheDateThatIsPicked) {
    add("Adler", DateSerial(1972, 3, 14));
    add("Berg", DateSerial(1972, 3, 15));
    open();
    pick(DateSerial(2001, 3, 15));
    EXPECT_EQ(rows(), QStringList(QStringLiteral("Berg|29")));
}

TEST_F(BirthdayCalendar, IsEmptyAndSaysNothingOnADayWithoutBirthdays) {
    add("Adler", DateSerial(1972, 3, 14));
    open();
    pick(DateSerial(2000, 3, 16));
    EXPECT_EQ(rows(), QStringList());
    EXPECT_TRUE(host_.messages().empty());
}

TEST_F(BirthdayCalendar, ShowsTheStarSignBeforeTheName) {
    add("Adler", DateSerial(1972, 3, 14));
    add("Berg", DateSerial(1972, 12, 1));
    open();
    const QAbstractItemModel& model = *of<ListView>("lvBDays").model();
    const auto pictureOfFirst = [&] {
        return model.index(0, 0).data(Qt::DecorationRole).value<QPixmap>().toImage();
    };
    EXPECT_EQ(pictureOfFirst(), smallPicture(QStringLiteral("pisces")).toImage());
    pick(DateSerial(2000, 12, 1));
    EXPECT_EQ(pictureOfFirst(), smallPicture(QStringLiteral("sagittarius")).toImage());
}

TEST_F(BirthdayCalendar, SortsByTheColumnThatIsClickedAsText) {
    add("Ten", DateSerial(1990, 3, 14));
    add("Nine", DateSerial(1991, 3, 14));
    open();
    clickHeader(1);
    EXPECT_EQ(rows(), QStringList({QStringLiteral("Nine|9"), QStringLiteral("Ten|10")}));
    clickHeader(2);
    EXPECT_EQ(rows(), QStringList({QStringLiteral("Ten|10"), QStringLiteral("Nine|9")}));
}

TEST_F(BirthdayCalendar, SortsUpwardsAtASecondClickToo) {
    add("Ten", DateSerial(1990, 3, 14));
    add("Nine", DateSerial(1991, 3, 14));
    open();
    QHeaderView& header = *of<ListView>("lvBDays").header();
    const QPoint age(header.sectionViewportPosition(1) + 5, header.height() / 2);
    for (int clicks = 0; clicks < 2; ++clicks) {
        click(*header.viewport(), age);
        EXPECT_EQ(rows(), QStringList({QStringLiteral("Ten|10"), QStringLiteral("Nine|9")}));
    }
}

TEST_F(BirthdayCalendar, GoesOnSortingWhenTheDateChanges) {
    add("Aged", DateSerial(1950, 3, 15));
    add("Young", DateSerial(1990, 3, 15));
    open();
    pick(DateSerial(2000, 3, 15));
    EXPECT_EQ(rows(), QStringList({QStringLiteral("Aged|50"), QStringLiteral("Young|10")}));
    clickHeader(2);
    pick(DateSerial(2001, 3, 14));
    pick(DateSerial(2001, 3, 15));
    EXPECT_EQ(rows(), QStringList({QStringLiteral("Young|11"), QStringLiteral("Aged|51")}));
}

TEST_F(BirthdayCalendar, MissesWhoeverIsAddedUntilItIsOpenedAgain) {
    add("Adler", DateSerial(1972, 3, 15));
    open();
    add("Newcomer", DateSerial(1980, 3, 15));
    pick(DateSerial(2000, 3, 15));
    EXPECT_EQ(rows(), QStringList(QStringLiteral("Adler|28")));
    form_.reset();
    form_ = std::make_unique<frmBirthdayToday>(&window());
    form_->Show();
    pick(DateSerial(2000, 3, 15));
    EXPECT_EQ(rows(), QStringList({QStringLiteral("Adler|28"), QStringLiteral("Newcomer|20")}));
}

TEST_F(BirthdayCalendar, EndsTheProgramWhenThereIsNobody) {
    load();
    runSql(directory_.people(), QStringLiteral("DELETE FROM Data"));
    host_.expectMessage(noCurrentRecordBox());
    form_ = std::make_unique<frmBirthdayToday>(&window());
    runEvent([this] { form_->Load(); });
    EXPECT_EQ(host_.exitCode(), 1);
    host_.forgetExit();
}

TEST_F(BirthdayCalendar, GoesAtItsButtonAndCanBeLoadedAgain) {
    open();
    click(of<PictureButton>("cmdClose"));
    EXPECT_FALSE(form_->isLoaded());
    EXPECT_FALSE(form_->isVisible());
    form_->Show();
    EXPECT_TRUE(form_->isVisible());
}

}  // namespace
