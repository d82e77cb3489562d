// The person's card.
#include "records/frmZoom.h"

#include <QLabel>
#include <QPlainTextEdit>

#include "controls/list_box.h"
#include "controls/picture_button.h"
#include "controls/pictures.h"
#include "cycles/calendar.h"
#include "runtime/event.h"
#include "shell/frmMain.h"
#include "shell/handover.h"
#include "support/errors.h"
#include "support/event_counter.h"
#include "support/form_rules.h"
#include "support/main_window.h"

using modCycles::DateSerial;

namespace {

class PersonZoom : public MainWindowTest {
  protected:
    ~PersonZoom() override { modCycles::SelectedNameID = 0; }

    // Opens the card of a person as a double click on the name does.
    void open(Long nameId) {
        modCycles::SelectedNameID = nameId;
        form_ = std::make_unique<frmZoom>();
        runEvent([this] { form_->Show(); });
    }

    void openNew(const PersonRow& person) { open(addPerson(person)); }

    template <class Control>
    Control& of(const char* name) {
        return child<Control>(*form_, QString::fromLatin1(name));
    }

    QString textOf(const char* label) { return of<QLabel>(label).text(); }
    QString notes() { return of<QPlainTextEdit>("txtNotes").toPlainText(); }

    void expectTheEnd(const QString& message) {
        host_.expectMessage(message);
        form_ = std::make_unique<frmZoom>();
        runEvent([this] { form_->Load(); });
        EXPECT_EQ(host_.exitCode(), 1);
        host_.forgetExit();
    }

    std::unique_ptr<frmZoom> form_;
};

const QString kAnna = QStringLiteral("Anna");
const QString kSmith = QStringLiteral("Smith");
const QString kUntouched = QStringLiteral("No category");

TEST_F(PersonZoom, ShowsThePersonWhoIsHandedOver) {
    openNew({.name = kSmith,
             .firstName = kAnna,
             .birthdate = Value(DateSerial(1972, 10, 20)),
             .isFemale = true,
             .catId = friends_,
             .notes = QStringLiteral("Likes walks.")});
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Person Zoom"));
    EXPECT_EQ(textOf("lblName"), QStringLiteral("Anna Smith (27)"));
    EXPECT_EQ(textOf("lblBirth"), QStringLiteral("Friday, 20 October 1972"));
    EXPECT_EQ(textOf("lblCat"), QStringLiteral("Friends"));
    EXPECT_EQ(notes(), QStringLiteral("Likes walks."));
}

TEST_F(PersonZoom, ShowsThePictureOfTheGender) {
    openNew({.name = kSmith, .isFemale = true});
    EXPECT_FALSE(of<QLabel>("imgMale").isVisible());
    EXPECT_TRUE(of<QLabel>("imgFemale").isVisible());
    openNew({.name = kSmith, .isFemale = false});
    EXPECT_TRUE(of<QLabel>("imgMale").isVisible());
    EXPECT_FALSE(of<QLabel>("imgFemale").isVisible());
    EXPECT_NE(of<QLabel>("imgMale").pixmap().toImage(), of<QLabel>("imgFemale").pixmap().toImage());
}

TEST_F(PersonZoom, ShowsThePictureOfTheStarSignAndSpellsItInTheTooltip) {
    openNew({.name = kSmith, .birthdate = Value(DateSerial(1972, 10, 20))});
    EXPECT_EQ(of<QLabel>("imgSign").pixmap().toImage(),
              largePicture(QStringLiteral("libra")).toImage());
    EXPECT_EQ(of<QLabel>("imgSign").toolTip(), QStringLiteral("Libra"));
    EXPECT_EQ(of<QLabel>("imgSign").accessibleName(), QStringLiteral("Libra"));
    openNew({.name = kSmith, .birthdate = Value(DateSerial(1972, 12, 31))});
    EXPECT_EQ(of<QLabel>("imgSign").pixmap().toImage(),
              largePicture(QStringLiteral("capricorn")).toImage());
    EXPECT_EQ(of<QLabel>("imgSign").toolTip(), QStringLiteral("Capricorn"));
}

TEST_F(PersonZoom, LoadsNoOtherFormForThePicture) {
    openNew({.name = kSmith});
    EXPECT_EQ(Form::forms(), std::vector<Form*>{form_.get()});
}

TEST_F(PersonZoom, HoldsTheCategoriesInTheOrderOfTheStoreAndStopsAtThePersons) {
    const Long aunts = addCategory(QStringLiteral("Aunts"));
    addCategory(QStringLiteral("Uncles"));
    openNew({.name = kSmith, .catId = aunts});
    const auto& list = of<ListBox>("listCats");
    ASSERT_EQ(list.ListCount(), 4);
    EXPECT_EQ(list.List(0), QStringLiteral("Family"));
    EXPECT_EQ(list.List(2), QStringLiteral("Aunts"));
    EXPECT_EQ(list.ItemData(2), aunts);
    EXPECT_EQ(list.ListIndex(), 2);
    EXPECT_EQ(textOf("lblCat"), QStringLiteral("Aunts"));
}

TEST_F(PersonZoom, WalksTheCategoriesFromTheFirstOn) {
    const Long aunts = addCategory(QStringLiteral("Aunts"));
    modCycles::SelectedNameID = addPerson({.name = kSmith, .catId = aunts});
    form_ = std::make_unique<frmZoom>();
    const EventCounter steps(of<ListBox>("listCats"), &ListBox::Click);
    form_->Load();
    EXPECT_EQ(steps.fired(), 3);
}

TEST_F(PersonZoom, OpensForACategoryThatIsGoneAndLeavesItsLabelAlone) {
    directory_.dropConstraints();
    addCategory(QStringLiteral("Family"));
    openNew({.name = kSmith, .catId = 99});
    EXPECT_EQ(textOf("lblName").left(5), kSmith);
    EXPECT_EQ(textOf("lblCat"), kUntouched);
}

TEST_F(PersonZoom, OpensWhereThereIsNoCategoryAtAll) {
    directory_.dropConstraints();
    openNew({.name = kSmith, .catId = 1});
    EXPECT_EQ(textOf("lblCat"), kUntouched);
    EXPECT_EQ(of<ListBox>("listCats").ListCount(), 0);
}

TEST_F(PersonZoom, ShowsNoNotesForEmptyOnesAndForNull) {
    openNew({.name = kSmith, .notes = {}});
    EXPECT_EQ(notes(), QString());
    openNew({.name = kSmith, .notes = QStringLiteral("")});
    EXPECT_EQ(notes(), QString());
}

TEST_F(PersonZoom, ShowsNamesAndNotesAsTheyAreWritten) {
    const QString odd = QStringLiteral("<b>&Co</b>");
    openNew({.name = odd, .notes = odd});
    EXPECT_EQ(of<QLabel>("lblName").textFormat(), Qt::PlainText);
    EXPECT_TRUE(textOf("lblName").startsWith(odd));
    EXPECT_EQ(notes(), odd);
}

TEST_F(PersonZoom, ChangesNothing) {
    openNew({.name = kSmith, .notes = QStringLiteral("Likes walks.")});
    type(of<QPlainTextEdit>("txtNotes"), QStringLiteral("x"));
    EXPECT_EQ(notes(), QStringLiteral("Likes walks."));
}

TEST_F(PersonZoom, FitsASmallScreenWhateverItShows) {
    openNew({.name = QString(255, u'W'), .firstName = QString(255, u'W')});
    EXPECT_EQ(objectionsToSize(*form_), Objections());
    openNew({.name = QStringLiteral("word ").repeated(50)});
    EXPECT_EQ(objectionsToSize(*form_), Objections());
}

TEST_F(PersonZoom, EndsTheProgramForAPersonWhoIsGone) {
    modCycles::SelectedNameID = 4711;
    expectTheEnd(noCurrentRecordBox());
}

TEST_F(PersonZoom, EndsTheProgramForADateOfBirthThatIsNull) {
    directory_.dropConstraints();
    modCycles::SelectedNameID = addPerson({.name = kSmith, .birthdate = Value()});
    expectTheEnd(QStringLiteral("Run-time error '94':\n\nInvalid use of Null"));
}

TEST_F(PersonZoom, GoesAtItsButton) {
    openNew({.name = kSmith});
    EXPECT_EQ(of<PictureButton>("cmdClose").text(), QStringLiteral("Close"));
    click(of<PictureButton>("cmdClose"));
    EXPECT_FALSE(form_->isLoaded());
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(PersonZoom, LeavesThePersonWhoIsHandedOverToTheOpener) {
    openNew({.name = kSmith});
    const Long handedOver = modCycles::SelectedNameID;
    pressKey(*form_, Qt::Key_Escape);
    EXPECT_EQ(modCycles::SelectedNameID, handedOver);
}

}  // namespace
