// The import wizard: its steps, the old database, the selection, what it writes, and its end.
#include "import/frmImport.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QDir>
#include <QTimer>

#include "controls/file_dialog.h"
#include "import/import_driver.h"
#include "support/errors.h"
#include "support/files.h"
#include "support/form_rules.h"
#include "support/jet_builder.h"

namespace {

class Import : public ImportTest {
  protected:
    QStringList visibleControls() {
        QStringList visible;
        for (const char* name :
             {"lblLocation", "txtPath", "cmdBrowse", "lstImport", "chkAll", "lvImport", "lblN",
              "txtN", "lblF", "txtF", "lblB", "dtpImport", "lblC", "cbImport", "cmdUpdate",
              "cmdAssign", "lblFinish", "txtFinish", "pbImport"}) {
            if (isShown(name))
                visible += QString::fromLatin1(name);
        }
        return visible;
    }

    QString shown() { return visibleControls().join(u' '); }

    QStringList listedNames() {
        QStringList listed;
        for (int i = 0; i < names().ListCount(); ++i)
            listed += names().List(i);
        return listed;
    }

    std::vector<bool> selected() {
        std::vector<bool> selected;
        for (int i = 0; i < names().ListCount(); ++i)
            selected.push_back(names().Selected(i));
        return selected;
    }

    QString focused() { return wizard().focusWidget()->objectName(); }

    const QString kLocationControls = QStringLiteral("lblLocation txtPath cmdBrowse");
    const QString kSelectionControls = QStringLiteral("lstImport chkAll");
    const QString kEditingControls = QStringLiteral(
        "lvImport lblN txtN lblF txtF lblB dtpImport lblC cbImport cmdUpdate cmdAssign");
};

TEST_F(Import, StartsWithTheLocation) {
    open();
    EXPECT_EQ(wizard().windowTitle(), u"Import Wizard");
    EXPECT_EQ(wizard().ImportStep, 1);
    EXPECT_EQ(wizard().ImportRow, 0);
    EXPECT_FALSE(wizard().ImportDirty);
    EXPECT_FALSE(isEnabled("cmdNext"));
    EXPECT_EQ(guidance(), importing::step(1).guidance);
    EXPECT_EQ(shown(), kLocationControls);
    EXPECT_TRUE(in<TextBox>("txtPath").isReadOnly());
    EXPECT_EQ(in<DatePicker>("dtpImport").CustomFormat(), u"d MMMM yyyy");
}

TEST_F(Import, CallsItsControlsByTheirTexts) {
    open();
    const std::pair<const char*, const char16_t*> labels[] = {
        {"lblLocation", u"Location of Ondara 1.0 database"},
        {"lblN", u"Name:"},
        {"lblF", u"First name:"},
        {"lblB", u"Birthdate:"},
        {"lblC", u"Category:"}};
    for (const auto& [label, text] : labels)
        EXPECT_EQ(in<QLabel>(label).text(), QString::fromUtf16(text));
    const std::pair<const char*, const char16_t*> buttons[] = {
        {"cmdBrowse", u"&Browse"}, {"chkAll", u"&Select all"},
        {"cmdUpdate", u"&Update"}, {"cmdAssign", u"&Assign category to all"},
        {"cmdBack", u"< &Back"},   {"cmdNext", u"&Next >"},
        {"cmdClose", u"&Close"}};
    for (const auto& [button, text] : buttons)
        EXPECT_EQ(captionOf(button), QString::fromUtf16(text));
}

TEST_F(Import, ListsTheCategoriesInOrderAndSelectsTheFirst) {
    addCategory(QStringLiteral("Aunts"));
    open();
    const auto& categories = in<ComboBox>("cbImport");
    EXPECT_EQ(categories.ListCount(), 3);
    EXPECT_EQ(categories.List(0), u"Aunts");
    EXPECT_EQ(categories.ListIndex(), 0);
    EXPECT_EQ(categories.ItemData(1), family_);
}

TEST_F(Import, AsksForTheOldDatabaseByItsName) {
    open();
    host_.expectFileQuestion(std::nullopt);
    press("cmdBrowse");
    const FileQuestion& asked = host_.fileQuestions().back();
    EXPECT_EQ(asked.purpose, FilePurpose::Open);
    EXPECT_EQ(asked.title, u"Locate Names.mdb");
    EXPECT_EQ(asked.fileName, u"names.mdb");
    EXPECT_EQ(asked.filters, (std::vector<FileFilter>{{QStringLiteral("Ondara 1.0 database"),
                                                       QStringLiteral("names.mdb")}}));
    EXPECT_EQ(asked.owner, &wizard());
    EXPECT_TRUE(wizard().findChild<FileDialog*>(QStringLiteral("cdgImport")));
}

TEST_F(Import, ListsTheNamesOfTheOldDatabaseAsTheyStand) {
    open();
    browse(old_);
    EXPECT_EQ(in<TextBox>("txtPath").text(), QDir::toNativeSeparators(old_));
    EXPECT_EQ(listedNames().join(u'|'), u"Doe, John|Jane Roe|Smith");
    EXPECT_EQ(selected(), std::vector({false, false, false}));
    EXPECT_TRUE(isEnabled("cmdNext"));
    EXPECT_EQ(wizard().ImportStep, 1);
}

TEST_F(Import, ImportsFromAJetFileAndLeavesItAsItIs) {
    const BuiltTable people{.name = QStringLiteral("Data"),
                            .columns = {{QStringLiteral("ID"), JetType::Int32},
                                        {QStringLiteral("Name"), JetType::Text, 50},
                                        {QStringLiteral("birthdate"), JetType::Date}},
                            .rows = {{{7, QStringLiteral("Dupr\u00E9, \u00C9lo\u00EFse"), 26592.5}},
                                     {{8, QStringLiteral("John Doe"), -1.25}}}};
    const QByteArray old = builtJet(4, {people}).bytes;
    makeFile(old_, old);
    openRows({0, 1});
    EXPECT_EQ(textsOf(1).join(u'|'), u"Dupr\u00E9|\u00C9lo\u00EFse|20 Oct 1972||?|0");
    EXPECT_EQ(textsOf(2).join(u'|'), u"Doe|John|29 Dec 1899||?|0");
    press("cmdAssign");
    press("cmdNext");
    press("cmdNext");
    EXPECT_EQ(stored("SELECT Birthdate FROM Data WHERE FName = 'John'"), Value(-1.0));
    EXPECT_EQ(fileBytes(old_), old);
}

TEST_F(Import, TakesTheOldDatabaseWhateverTheCaseOfItsName) {
    open();
    browse(directory_.path(QStringLiteral("NAMES.MDB")));
    EXPECT_EQ(names().ListCount(), 3);
}

TEST_F(Import, DoesNothingAtAllWhenTheDialogIsCancelled) {
    open();
    host_.expectFileQuestion(std::nullopt);
    press("cmdBrowse");
    EXPECT_FALSE(isEnabled("cmdNext"));
    EXPECT_EQ(in<TextBox>("txtPath").text(), QString());
    browse(old_);
    host_.expectFileQuestion(std::nullopt);
    press("cmdBrowse");
    EXPECT_TRUE(isEnabled("cmdNext"));
    EXPECT_EQ(names().ListCount(), 3);
    EXPECT_TRUE(host_.messages().empty());
}

TEST_F(Import, AppendsTheNamesOfASecondOldDatabaseAndReadsItsRowsByTheirPlace) {
    const QString second = directory_.path(QStringLiteral("Second.mdb"));
    makeOld(second, {"'Last, Lou'", "'Older, Ann'"});
    openSelection();
    press("cmdBack");
    browse(second);
    EXPECT_EQ(listedNames().join(u'|'), u"Doe, John|Jane Roe|Smith|Last, Lou|Older, Ann");
    press("cmdNext");
    names().setSelected(1, true);
    press("cmdNext");
    EXPECT_EQ(lastNames(), QStringList{QStringLiteral("Older")});
    press("cmdBack");
    names().setSelected(3, true);
    expectTrap(noCurrentRecord());
    press("cmdNext");
    EXPECT_EQ(wizard().ImportStep, importing::kListing);
}

TEST_F(Import, ShowsTheControlsOfItsStepAndNoOthers) {
    openSelection();
    EXPECT_EQ(shown(), kSelectionControls);
    names().setSelected(0, true);
    press("cmdNext");
    EXPECT_EQ(wizard().ImportStep, 4);
    EXPECT_EQ(shown(), kEditingControls);
    press("cmdAssign");
    press("cmdNext");
    EXPECT_EQ(shown(), u"lblFinish");
    press("cmdNext");
    EXPECT_EQ(shown(), u"lblFinish txtFinish");
}

TEST_F(Import, GuidesTheUserFromStepToStep) {
    openSelection();
    EXPECT_EQ(guidance(), importing::step(2).guidance);
    names().setSelected(0, true);
    press("cmdNext");
    EXPECT_EQ(guidance(), importing::step(4).guidance);
    press("cmdAssign");
    press("cmdNext");
    EXPECT_EQ(guidance(), QString());
    EXPECT_EQ(closing(), importing::step(5).closing);
    press("cmdNext");
    EXPECT_EQ(guidance(), QString());
}

TEST_F(Import, FinishesOnTheFifthStepAndGoesOnAgainOnTheFourth) {
    openRows({0});
    EXPECT_EQ(captionOf("cmdNext"), u"&Next >");
    press("cmdAssign");
    press("cmdNext");
    EXPECT_EQ(captionOf("cmdNext"), u"&Finish");
    press("cmdBack");
    EXPECT_EQ(wizard().ImportStep, 4);
    EXPECT_EQ(captionOf("cmdNext"), u"&Next >");
}

TEST_F(Import, GoesBackStepByStepAndPastTheListing) {
    openConfirmation();
    for (const Integer step : std::vector<Integer>{4, 2, 1, 1}) {
        press("cmdBack");
        EXPECT_EQ(wizard().ImportStep, step);
        EXPECT_EQ(guidance(), importing::step(step).guidance);
    }
    EXPECT_EQ(shown(), kLocationControls);
}

TEST_F(Import, DoesNothingForAStepThatIsNone) {
    open();
    for (const Integer none : std::vector<Integer>{-1, 0, 7}) {
        wizard().WizardSteps(none);
        EXPECT_EQ(shown(), kLocationControls);
    }
}

TEST_F(Import, GivesTheNextKeyToTheListOfTheStep) {
    openSelection();
    EXPECT_EQ(focused(), u"lstImport");
    names().setSelected(0, true);
    press("cmdNext");
    EXPECT_EQ(focused(), u"lvImport");
}

TEST_F(Import, KeepsItsSizeAndRoomForItsGuidanceInEveryStep) {
    open();
    const QSize size = wizard().size();
    const QRect controls = in<QWidget>("stkSteps").geometry();
    const int top = in<QWidget>("lblIntro").y();
    const auto expectRoom = [&] {
        QCoreApplication::sendPostedEvents();
        const auto& label = in<QLabel>("lblIntro");
        EXPECT_EQ(wizard().size(), size);
        const QRect place = in<QWidget>("stkSteps").geometry();
        EXPECT_EQ(place.top(), guidance().isEmpty() ? top : controls.top());
        EXPECT_EQ(place.bottom(), controls.bottom());
        EXPECT_LE(label.heightForWidth(label.width()), label.height());
        EXPECT_EQ(objectionsToTabOrder(wizard()), Objections());
        EXPECT_EQ(objectionsToMnemonics(wizard(), "B"), Objections());
    };
    expectRoom();
    browse(old_);
    for (int step = 2; step <= 6; ++step) {
        press("cmdNext");
        expectRoom();
        names().setAllSelected(true);
        if (wizard().ImportStep == importing::kEditing)
            press("cmdAssign");
    }
}

TEST_F(Import, SelectsEverybodyAndNobody) {
    openSelection();
    names().setListIndex(1);
    press("chkAll");
    EXPECT_EQ(selected(), std::vector({true, true, true}));
    EXPECT_EQ(names().ListIndex(), -1);
    names().setListIndex(1);
    press("chkAll");
    EXPECT_EQ(selected(), std::vector({false, false, false}));
    EXPECT_EQ(names().ListIndex(), -1);
}

TEST_F(Import, SelectsNobodyElseByABoxThatIsNeitherEmptyNorChecked) {
    openSelection();
    names().setSelected(1, true);
    names().setListIndex(1);
    in<QCheckBox>("chkAll").setCheckState(Qt::PartiallyChecked);
    EXPECT_EQ(selected(), std::vector({false, true, false}));
    EXPECT_EQ(names().ListIndex(), 1);
}

TEST_F(Import, StaysOnTheSelectionOfNobodyAndGoesOnWithAnEmptyListAtTheSecondPress) {
    openSelection();
    press("cmdNext");
    EXPECT_EQ(wizard().ImportStep, 3);
    EXPECT_EQ(shown(), kSelectionControls);
    EXPECT_EQ(guidance(), importing::step(2).guidance);
    press("cmdNext");
    EXPECT_EQ(wizard().ImportStep, 4);
    EXPECT_EQ(shown(), kEditingControls);
    EXPECT_EQ(rows().ListCount(), 0);
}

TEST_F(Import, GoesBackFromTheListingToTheSelection) {
    openSelection();
    press("cmdNext");
    press("cmdBack");
    EXPECT_EQ(wizard().ImportStep, 2);
    EXPECT_EQ(shown(), kSelectionControls);
}

TEST_F(Import, EmptiesTheRowsWhereNobodyIsSelectedAnyMore) {
    openRows();
    press("cmdBack");
    names().setAllSelected(false);
    press("cmdNext");
    EXPECT_EQ(rows().ListCount(), 0);
}

TEST_F(Import, ConfirmsAnEmptyListAndImportsNobody) {
    openSelection();
    press("cmdNext");
    press("cmdNext");
    press("cmdNext");
    EXPECT_EQ(wizard().ImportStep, 5);
    EXPECT_EQ(shown(), u"lblFinish");
    host_.expectMessage(QStringLiteral("Please select people first."));
    press("cmdNext");
    EXPECT_EQ(shown(), u"lblFinish txtFinish pbImport");
    EXPECT_EQ(closing(), importing::step(5).closing);
    EXPECT_EQ(host_.messages().back().owner, &wizard());
    EXPECT_FALSE(wizard().ImportDirty);
}

TEST_F(Import, WritesEverybodyFromTheLastRowToTheFirst) {
    openConfirmation();
    press("cmdNext");
    EXPECT_EQ(wizard().ImportStep, 6);
    EXPECT_EQ(imported(), u"Smith\r\nJane Roe\r\nJohn Doe\r\n");
    EXPECT_EQ(closing(), importing::closingWords(false));
    EXPECT_EQ(rows().ListCount(), 0);
    EXPECT_TRUE(wizard().ImportDirty);
    EXPECT_EQ(stored("SELECT group_concat(Name) FROM (SELECT Name FROM Data WHERE NameID > 3 "
                     "ORDER BY NameID)"),
              Value(QStringLiteral("Smith,Roe,Doe")));
    EXPECT_TRUE(in<MultiLineTextBox>("txtFinish").isReadOnly());
}

TEST_F(Import, WritesEveryFieldAndNoNotes) {
    openRows({0, 2});
    rows().setCurrentIndex(rows().model()->index(0, 0));
    pressKey(rows(), Qt::Key_Space);
    in<ComboBox>("cbImport").setText(QStringLiteral("Friends"));
    press("cmdAssign");
    press("cmdNext");
    press("cmdNext");
    EXPECT_EQ(stored("SELECT FName FROM Data WHERE Name = 'Doe'"), Value(QStringLiteral("John")));
    EXPECT_EQ(stored("SELECT Birthdate FROM Data WHERE Name = 'Doe'"), Value(26592.0));
    EXPECT_EQ(stored("SELECT Gender FROM Data WHERE Name = 'Doe'"), Value(-1));
    EXPECT_EQ(stored("SELECT CatID FROM Data WHERE Name = 'Doe'"), Value(friends_));
    EXPECT_EQ(stored("SELECT count(*) FROM Data WHERE NameID > 3 AND Notes IS NULL"), Value(2));
    EXPECT_EQ(stored("SELECT Gender FROM Data WHERE FName = ''"), Value(0));
}

TEST_F(Import, LeavesTheBarWhereItIsUntilItGoes) {
    openConfirmation();
    std::vector<double> values;
    std::vector<bool> shows;
    const auto& bar = in<ProgressBar>("pbImport");
    QObject::connect(&in<MultiLineTextBox>("txtFinish"), &MultiLineTextBox::textChanged, &bar, [&] {
        values.push_back(bar.Value());
        shows.push_back(isShown("pbImport"));
        EXPECT_EQ(closing(), QString());
    });
    QObject::connect(&bar, &ProgressBar::valueChanged, &bar, [] { ADD_FAILURE() << "it moved"; });
    press("cmdNext");
    EXPECT_GE(values.size(), 3U);
    EXPECT_EQ(values, std::vector<double>(values.size(), 0));
    EXPECT_EQ(shows, std::vector<bool>(shows.size(), true));
    EXPECT_FALSE(isShown("pbImport"));
}

TEST_F(Import, DoesNothingForNextOnceItHasFinished) {
    openConfirmation();
    press("cmdNext");
    press("cmdNext");
    EXPECT_EQ(wizard().ImportStep, 6);
    EXPECT_EQ(closing(), importing::closingWords(false));
    EXPECT_EQ(peopleStored(), kStoredBefore + 3);
}

TEST_F(Import, HasNobodyLeftForWhoGoesBackAndFinishesAgain) {
    openConfirmation();
    press("cmdNext");
    press("cmdBack");
    EXPECT_EQ(wizard().ImportStep, 5);
    EXPECT_EQ(shown(), u"lblFinish");
    EXPECT_EQ(closing(), importing::step(5).closing);
    host_.expectMessage(QStringLiteral("Please select people first."));
    press("cmdNext");
    EXPECT_EQ(peopleStored(), kStoredBefore + 3);
    EXPECT_EQ(imported(), u"Smith\r\nJane Roe\r\nJohn Doe\r\n");
}

TEST_F(Import, WritesEverybodyAgainWhoIsListedAnew) {
    openConfirmation();
    press("cmdNext");
    press("cmdBack");
    press("cmdBack");
    press("cmdBack");
    press("cmdNext");
    press("cmdAssign");
    press("cmdNext");
    press("cmdNext");
    EXPECT_EQ(peopleStored(), kStoredBefore + 6);
    EXPECT_EQ(imported(), u"Smith\r\nJane Roe\r\nJohn Doe\r\n");
}

TEST_F(Import, LeavesTheMainListAloneWhereNobodyWasImported) {
    openConfirmation();
    control<ListBox>("lstMain").setText(QStringLiteral("Smith, Anna"));
    press("cmdClose");
    EXPECT_FALSE(wizard().isLoaded());
    EXPECT_FALSE(wizard().isVisible());
    EXPECT_EQ(control<ListBox>("lstMain").Text(), u"Smith, Anna");
}

TEST_F(Import, ListsThePeopleAnewAndKeepsTheFilterWhereSomebodyWasImported) {
    openConfirmation();
    control<ComboBox>("cbCategory").setText(QStringLiteral("Friends"));
    press("cmdNext");
    EXPECT_EQ(control<ListBox>("lstMain").ListCount(), 2);
    wizard().close();
    EXPECT_EQ(control<ListBox>("lstMain").ListCount(), 6);
    EXPECT_EQ(control<ComboBox>("cbCategory").Text(), u"Friends");
}

TEST_F(Import, StartsFromNothingWhenItIsLoadedAgain) {
    openConfirmation();
    press("cmdNext");
    press("cmdClose");
    wizard().Load();
    EXPECT_EQ(wizard().ImportStep, 1);
    EXPECT_FALSE(wizard().ImportDirty);
    EXPECT_FALSE(isEnabled("cmdNext"));
}

TEST_F(Import, IsGoneWhenItsCommandReturns) {
    load();
    {
        frmImport form(&window());
        QTimer::singleShot(
            0, &form, [&] { child<QAbstractButton>(form, QStringLiteral("cmdClose")).click(); });
        form.ShowModal();
    }
    EXPECT_EQ(Form::forms(), std::vector<Form*>{&window()});
    EXPECT_TRUE(window().findChildren<frmImport*>().isEmpty());
}

}  // namespace
