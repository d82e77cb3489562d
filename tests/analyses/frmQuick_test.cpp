// Quick match.
#include "analyses/frmQuick.h"

#include <QLabel>

#include "analyses/compat_verdict.h"
#include "controls/coloured_label.h"
#include "controls/date_picker.h"
#include "controls/list_box.h"
#include "controls/picture_button.h"
#include "cycles/calendar.h"
#include "runtime/event.h"
#include "shell/frmMain.h"
#include "support/errors.h"
#include "support/main_window.h"

using namespace modCycles;

namespace {

const Date kBorn = DateSerial(1972, 10, 20);

class QuickMatch : public MainWindowTest {
  protected:
    // Opens it for a person who has been chosen in the main window.
    void openFor(const QString& displayText) {
        loadAndChoose(displayText);
        form_ = std::make_unique<frmQuick>(&window());
        runEvent([this] { form_->Show(); });
    }

    void open() { openFor(QStringLiteral("Smith, Anna")); }

    template <class Control>
    Control& of(const char* name) {
        return child<Control>(*form_, QString::fromLatin1(name));
    }

    QString textOf(const char* label) { return of<QLabel>(label).text(); }

    // Changes the date as the user does, who goes past the control's own operations.
    void pick(Date date) {
        static_cast<QDateEdit&>(of<DatePicker>("dtpQuick"))
            .setDate(QDate(Year(date), Month(date), Day(date)));
    }

    // "emotional|physical|intellectual|average" as they are shown.
    QString percentages() {
        return QStringList({textOf("lblE"), textOf("lblP"), textOf("lblI"), textOf("lblAvg")})
            .join(u'|');
    }

    std::unique_ptr<frmQuick> form_;
};

TEST_F(QuickMatch, OpensForThePersonWhoIsChosenOnTodayWithoutAComparison) {
    open();
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Quick Match Anna Smith"));
    EXPECT_EQ(of<DatePicker>("dtpQuick").Value(), DateSerial(2000, 3, 14));
    EXPECT_EQ(of<DatePicker>("dtpQuick").CustomFormat(), QStringLiteral("d MMMM yyyy"));
    EXPECT_EQ(percentages(), QStringLiteral("|||"));
    EXPECT_EQ(textOf("lblInter") + textOf("lblSign"), QString());
}

TEST_F(QuickMatch, OpensOnTheDayOnWhichItIsLoaded) {
    frmQuick form(&loadAndChoose(QStringLiteral("Smith, Anna")));
    host_.setNow(DateSerial(2000, 3, 15));
    form.Load();
    EXPECT_EQ(child<DatePicker>(form, QStringLiteral("dtpQuick")).Value(), DateSerial(2000, 3, 15));
}

TEST_F(QuickMatch, CallsAPersonWithoutAFirstNameByTheName) {
    openFor(QStringLiteral("Zed"));
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Quick Match Zed"));
}

TEST_F(QuickMatch, CallsItsControlsByTheirTexts) {
    open();
    EXPECT_EQ(textOf("Label1"), QStringLiteral("Match with:"));
    EXPECT_EQ(textOf("Label2"), QStringLiteral("Emotional:"));
    EXPECT_EQ(textOf("Label3"), QStringLiteral("Physical:"));
    EXPECT_EQ(textOf("Label4"), QStringLiteral("Intellectual:"));
    EXPECT_EQ(textOf("Label5"), QStringLiteral("Average:"));
    EXPECT_EQ(of<PictureButton>("cmdGo").text(), QStringLiteral("Go"));
    EXPECT_EQ(of<PictureButton>("cmdClose").text(), QStringLiteral("Close"));
}

TEST_F(QuickMatch, GivesEachPercentageTheColourOfItsCycle) {
    open();
    const std::pair<const char*, Long> labels[] = {{"lblE", 0xC00000},
                                                   {"lblP", 0x0000FF},
                                                   {"lblI", 0x008000},
                                                   {"lblAvg", 0x800080},
                                                   {"lblSign", 0x800080}};
    for (const auto& [name, colour] : labels)
        EXPECT_EQ(of<ColouredLabel>(name).ForeColor(), colour) << name;
}

TEST_F(QuickMatch, ComparesAtEveryChangeOfTheDate) {
    open();
    pick(kBorn);
    EXPECT_EQ(percentages(), QStringLiteral("100%|100%|100%|100%"));
    EXPECT_EQ(textOf("lblInter"), CompatAdviceText(100, 100, 100));
    pick(kBorn + 27);
    EXPECT_EQ(percentages(), QStringLiteral("93%|65%|64%|74%"));
    EXPECT_EQ(textOf("lblInter"), CompatAdviceText(93, 65, 64));
    EXPECT_EQ(textOf("lblSign"), QStringLiteral("Star sign: Scorpio"));
}

TEST_F(QuickMatch, ComparesWithTheDateAsItStandsAtGo) {
    open();
    of<DatePicker>("dtpQuick").setValue(kBorn + 14);
    EXPECT_EQ(percentages(), QStringLiteral("|||"));
    click(of<PictureButton>("cmdGo"));
    EXPECT_EQ(percentages(), QStringLiteral("0%|22%|15%|12%"));
    EXPECT_EQ(textOf("lblInter"), CompatAdviceText(0, 22, 15));
}

TEST_F(QuickMatch, HasRoomForItsLongestAdvice) {
    open();
    pick(kBorn);
    const auto& advice = of<QLabel>("lblInter");
    const int needed = advice.heightForWidth(advice.width());
    EXPECT_GT(needed, 3 * advice.fontMetrics().height());
    EXPECT_LE(needed, advice.height());
}

TEST_F(QuickMatch, IsTheSameSoManyDaysBeforeTheBirthAsAfter) {
    open();
    pick(kBorn + 100);
    const QString after = percentages() + textOf("lblInter");
    pick(kBorn + 27);
    pick(kBorn + -100);
    EXPECT_EQ(percentages() + textOf("lblInter"), after);
}

TEST_F(QuickMatch, TellsTheStarSignOfThePickedDateAndNotThePersons) {
    open();
    pick(DateSerial(1990, 5, 5));
    EXPECT_EQ(textOf("lblSign"), QStringLiteral("Star sign: Taurus"));
}

TEST_F(QuickMatch, WordsEachPercentageButTheAverageInATooltip) {
    open();
    pick(kBorn + 14);
    EXPECT_EQ(of<QLabel>("lblE").toolTip(), QStringLiteral("No or extremely low compatibility"));
    EXPECT_EQ(of<QLabel>("lblP").toolTip(), QStringLiteral("Sometimes Compatible"));
    EXPECT_EQ(of<QLabel>("lblI").toolTip(), QStringLiteral("No or extremely low compatibility"));
    EXPECT_EQ(of<QLabel>("lblAvg").toolTip(), QString());
}

TEST_F(QuickMatch, KeepsToThePersonOfItsOpening) {
    open();
    control<ListBox>("lstMain").setText(QStringLiteral("Zed"));
    runSql(directory_.people(), QStringLiteral("DELETE FROM Data"));
    pick(kBorn);
    EXPECT_EQ(percentages(), QStringLiteral("100%|100%|100%|100%"));
}

TEST_F(QuickMatch, ReportsADateOfBirthThatIsNull) {
    open();
    form_->Unload();
    directory_.dropConstraints();
    const Long undated = addPerson({.name = QStringLiteral("Undated"), .birthdate = Value()});
    auto& people = control<ListBox>("lstMain");
    people.setItemData(people.ListIndex(), undated);
    form_->Show();
    host_.expectMessage(
        QStringLiteral("Invalid use of Null. Please report this error to the author."));
    click(of<PictureButton>("cmdGo"));
    EXPECT_EQ(host_.messages().back().title, QString());
    EXPECT_EQ(host_.messages().back().icon, MessageIcon::None);
    EXPECT_EQ(host_.messages().back().owner, form_.get());
    EXPECT_EQ(percentages(), QStringLiteral("|||"));
}

TEST_F(QuickMatch, EndsTheProgramForAPersonWhoIsGone) {
    loadAndChoose(QStringLiteral("Zed"));
    runSql(directory_.people(), QStringLiteral("DELETE FROM Data"));
    host_.expectMessage(noCurrentRecordBox());
    form_ = std::make_unique<frmQuick>(&window());
    runEvent([this] { form_->Load(); });
    EXPECT_EQ(host_.exitCode(), 1);
    host_.forgetExit();
}

TEST_F(QuickMatch, GoesAtItsButtonAndCanBeLoadedAgain) {
    open();
    click(of<PictureButton>("cmdClose"));
    EXPECT_FALSE(form_->isLoaded());
    EXPECT_FALSE(form_->isVisible());
    form_->Show();
    pick(kBorn);
    EXPECT_EQ(percentages(), QStringLiteral("100%|100%|100%|100%"));
}

}  // namespace
