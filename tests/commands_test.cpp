// The commands of the main window: what they ask for, what they open, and the favourites.
#include "commands.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

#include "analyses/frmBirthdayToday.h"
#include "analyses/frmCompat.h"
#include "analyses/frmCritical.h"
#include "analyses/frmFind.h"
#include "analyses/frmGroup.h"
#include "analyses/frmQuick.h"
#include "controls/button_menu.h"
#include "controls/combo_box.h"
#include "controls/list_box.h"
#include "controls/picture_button.h"
#include "import/frmImport.h"
#include "records/frmAdd.h"
#include "records/frmAddNew.h"
#include "records/frmCategory.h"
#include "records/frmExplore.h"
#include "records/frmZoom.h"
#include "reports/dlgScreenPrinter.h"
#include "reports/frmDailyReport.h"
#include "shell/default_instance.h"
#include "shell/frmAbout.h"
#include "shell/frmMain.h"
#include "shell/frmManageFaves.h"
#include "shell/frmWait.h"
#include "shell/handover.h"
#include "shell/main_controls.h"
#include "store/favourites.h"
#include "support/event_counter.h"
#include "support/files.h"
#include "support/main_window.h"
#include "support/next_form.h"
#include "support/sheet_printer.h"

namespace {

const QString kAnna = QStringLiteral("Smith, Anna");

const QString kPrinterQuestion = QStringLiteral(
    "Ondara needs to communicate with the printer to collect information. Make sure the printer is "
    "switched on, or a printer error will occur.\n\nDo you wish to continue?");

class CommandsTest : public MainWindowTest {
  protected:
    void start() { commands_ = std::make_unique<Commands>(load()); }

    void startWith(const QString& displayText) {
        start();
        control<ListBox>("lstMain").setText(displayText);
    }

    // The command shows a form of this kind modally over the main window.
    template <class F>
    void expectForm(const char* command) {
        bool isShown = false;
        onNextForm<F>(
            [&](F& form) { isShown = form.isModal() && form.parentWidget() == &window(); });
        trigger(command);
        EXPECT_TRUE(isShown) << command;
    }

    // The command asks for the device, and then shows the report window.
    void onReport(const std::function<void(dlgScreenPrinter&)>& answer,
                  const std::function<void(frmDailyReport&)>& look) {
        onNextForm<dlgScreenPrinter>([answer, look](dlgScreenPrinter& dialog) {
            onNextForm<frmDailyReport>(look);
            answer(dialog);
        });
        trigger("mnuReport");
    }

    static void choosePrinter(QWidget& dialog) {
        child<QAbstractButton>(dialog, QStringLiteral("optPrinter")).click();
        child<QAbstractButton>(dialog, QStringLiteral("OKButton")).click();
    }

    ButtonMenu& favesMenu() { return *mainControls().mnuFaves; }

    void clickFavesEntry(int index) { Q_EMIT favesMenu().ButtonMenuClick(index); }

    void expectMessage(const char* text) { host_.expectMessage(QString::fromLatin1(text)); }

    QString fileOf(const QString& favourite) {
        return directory_.path(favourite + QStringLiteral(".ofp"));
    }

    // The commands that need a person.
    static constexpr const char* kNeedPerson[] = {"mnuMatchDabatase", "mnuQuickMatch", "mnuFind",
                                                  "mnuReport"};
    static constexpr int kFirstFavourite = 4;

  private:
    std::unique_ptr<Commands> commands_;
};

TEST_F(CommandsTest, AskForAPersonWhereTheyNeedOne) {
    start();
    for (const char* command : kNeedPerson) {
        expectMessage("Please select a person from the list.");
        trigger(command);
    }
    for (const Message& message : host_.messages()) {
        EXPECT_EQ(message.icon, MessageIcon::None);
        EXPECT_EQ(message.buttons, MessageButtons::Ok);
        EXPECT_EQ(message.owner, &window());
    }
}

TEST_F(CommandsTest, AskForDetailsInWordsOfTheirOwn) {
    start();
    expectMessage("Select a person from the list first.");
    trigger("mnuViewDetails");
    expectMessage("Select a person from the list first.");
    Q_EMIT control<PictureButton>("cmdDetails").Click();
}

TEST_F(CommandsTest, OpenAReportForTheScreen) {
    startWith(kAnna);
    modCycles::ReportToScreen = false;
    bool hasWaited = false;
    host_.onPaintWindows([&] { hasWaited = defaultInstance<frmWait>().isVisible(); });
    bool isShown = false;
    onReport(
        [](QWidget& dialog) { click(child<QAbstractButton>(dialog, QStringLiteral("OKButton"))); },
        [&](frmDailyReport& report) {
            isShown = report.isModal() && report.parentWidget() == &window() &&
                      defaultInstance<frmWait>().isHidden();
        });
    EXPECT_TRUE(isShown);
    EXPECT_TRUE(hasWaited);
    EXPECT_TRUE(modCycles::ReportToScreen);
    EXPECT_TRUE(host_.messages().empty());
}

TEST_F(CommandsTest, OpenAReportForTheScreenWhereTheDeviceWasNotAnswered) {
    startWith(kAnna);
    modCycles::ReportToScreen = false;
    bool isShown = false;
    onReport(
        [](QWidget& dialog) {
            child<QAbstractButton>(dialog, QStringLiteral("optPrinter")).click();
            dialog.close();
        },
        [&](frmDailyReport&) { isShown = true; });
    EXPECT_TRUE(isShown);
    EXPECT_TRUE(modCycles::ReportToScreen);
}

TEST_F(CommandsTest, AskBeforeTheyTalkToThePrinter) {
    PrinterTray tray;
    host_.onPrinter([&tray] { return std::make_unique<SheetPrinter>(tray); });
    startWith(kAnna);
    host_.expectMessage(kPrinterQuestion, Answer::Yes);
    bool isShown = false;
    onReport(choosePrinter, [&](frmDailyReport&) { isShown = true; });
    EXPECT_TRUE(isShown);
    const Message& question = host_.messages().back();
    EXPECT_EQ(question.title, u"Printer communication");
    EXPECT_EQ(question.buttons, MessageButtons::YesNo);
    EXPECT_EQ(question.icon, MessageIcon::Information);
    EXPECT_EQ(question.owner, &window());
}

TEST_F(CommandsTest, OpenNoReportWhereTheyMayNotTalkToThePrinter) {
    startWith(kAnna);
    host_.expectMessage(kPrinterQuestion, Answer::No);
    onNextForm<dlgScreenPrinter>(choosePrinter);
    trigger("mnuReport");
    EXPECT_FALSE(modCycles::ReportToScreen);
    EXPECT_TRUE(defaultInstance<frmWait>().isHidden());
}

TEST_F(CommandsTest, OpenTheSearchForEventsOfWhoIsChosen) {
    startWith(kAnna);
    expectForm<frmFind>("mnuFind");
}

TEST_F(CommandsTest, OpenTheDetailsOfWhoIsChosen) {
    startWith(kAnna);
    expectForm<frmCritical>("mnuViewDetails");
    QString caption;
    onNextForm<frmCritical>([&](frmCritical& form) { caption = form.windowTitle(); });
    Q_EMIT control<PictureButton>("cmdDetails").Click();
    EXPECT_EQ(caption, QStringLiteral("Details for Anna Smith (Libra)"));
}

TEST_F(CommandsTest, HaveThePersonOfTheHiddenListOnceAQuickDateIsCharted) {
    start();
    trigger("mnuQuickBio");
    control<QPushButton>("cmdQuickGo").click();
    expectForm<frmFind>("mnuFind");
    EXPECT_TRUE(host_.messages().empty());
}

TEST_F(CommandsTest, OpenTheFormsThatNeedNobodyWithoutAPerson) {
    start();
    expectForm<frmAddNew>("mnuAddNew");
    expectForm<frmBirthdayToday>("mnuBToday");
    expectForm<frmAbout>("mnuHelpAbout");
    expectForm<frmAdd>("mnuFileAdd");
    expectForm<frmCategory>("mnuFileCat");
    expectForm<frmExplore>("mnuFileExplore");
    expectForm<frmGroup>("mnuGroup");
    expectForm<frmImport>("mnuToolsImport");
}

TEST_F(CommandsTest, OpenTheFormsThatNeedAPersonForWhoeverIsChosen) {
    startWith(kAnna);
    expectForm<frmCompat>("mnuMatchDabatase");
    expectForm<frmQuick>("mnuQuickMatch");
}

TEST_F(CommandsTest, ShowTheWaitWindowBeforeASlowFormAlone) {
    startWith(kAnna);
    bool hasWaited = false;
    host_.onPaintWindows([&] { hasWaited |= defaultInstance<frmWait>().isVisible(); });
    const auto waits = [&](const char* command) {
        hasWaited = false;
        onNextForm<Form>([](Form&) {});
        trigger(command);
        EXPECT_TRUE(defaultInstance<frmWait>().isHidden()) << command;
        return hasWaited;
    };
    for (const char* slow : {"mnuViewDetails", "mnuMatchDabatase", "mnuFileAdd", "mnuFileCat",
                             "mnuFileExplore", "mnuGroup"})
        EXPECT_TRUE(waits(slow)) << slow;
    EXPECT_FALSE(waits("mnuQuickMatch"));
}

TEST_F(CommandsTest, ShowTheHelpFileByItsNameAlone) {
    start();
    host_.expectHelp(QStringLiteral("ondarahelp.chm"));
    trigger("mnuHelpContents");
    host_.expectHelp(QStringLiteral("ondarahelp.chm"));
    trigger("tlbMain_Help");
}

TEST_F(CommandsTest, ForgetWhoWasHandedOverOnceTheExplorerIsClosed) {
    start();
    onNextForm<frmExplore>([](frmExplore&) { modCycles::SelectedNameID = 7; });
    trigger("mnuFileExplore");
    EXPECT_EQ(modCycles::SelectedNameID, 0);
}

TEST_F(CommandsTest, HandTheCardThePersonWhoIsDoubleClicked) {
    startWith(kAnna);
    const ListBox& people = control<ListBox>("lstMain");
    Long handedOver = 0;
    onNextForm<frmZoom>([&](frmZoom& card) {
        handedOver = modCycles::SelectedNameID;
        EXPECT_TRUE(card.isModal());
        EXPECT_EQ(card.parentWidget(), &window());
    });
    Q_EMIT control<ListBox>("lstMain").DblClick();
    EXPECT_EQ(handedOver, people.ItemData(people.ListIndex()));
    EXPECT_EQ(modCycles::SelectedNameID, 0);
}

TEST_F(CommandsTest, EndTheProgramForADoubleClickThatFindsNobodySelected) {
    start();
    window().Show();
    host_.expectMessage(QStringLiteral("Run-time error '381':\n\nInvalid property array index"));
    QWidget& list = *control<ListBox>("lstMain").viewport();
    doubleClick(list, list.rect().bottomLeft() + QPoint(8, -8));
    EXPECT_EQ(host_.exitCode(), 1);
}

TEST_F(CommandsTest, AddWhoIsChosenToTheFavourites) {
    startWith(kAnna);
    clickFavesEntry(1);
    EXPECT_EQ(favesMenu().Text(kFirstFavourite), kAnna);
    EXPECT_TRUE(QFile::exists(fileOf(kAnna)));
}

TEST_F(CommandsTest, AddNobodyWithoutASelectionAndSayNothing) {
    start();
    clickFavesEntry(1);
    EXPECT_EQ(favesMenu().Count(), 3);
}

TEST_F(CommandsTest, ReportANameThatNoFileCanHave) {
    addPerson({.name = QStringLiteral("AC/DC"), .catId = family_});
    startWith(QStringLiteral("AC/DC"));
    host_.expectMessage(
        QStringLiteral(
            "Bad file name or number: no file can have this name, %1. Please report this "
            "error to the author.")
            .arg(QDir::toNativeSeparators(QStringLiteral("AC/DC.ofp"))));
    clickFavesEntry(1);
    EXPECT_EQ(favesMenu().Count(), 3);
    EXPECT_EQ(host_.messages().back().icon, MessageIcon::None);
    EXPECT_EQ(host_.messages().back().title, QString());
}

TEST_F(CommandsTest, OpenTheFormThatDeletesFavourites) {
    start();
    bool isShown = false;
    onNextForm<frmManageFaves>([&](frmManageFaves& form) {
        isShown = form.isModal() && form.parentWidget() == &window();
    });
    clickFavesEntry(2);
    EXPECT_TRUE(isShown);
}

TEST_F(CommandsTest, ChartAFavouriteThatIsPicked) {
    writeFavourite({1, kAnna});
    start();
    control<ComboBox>("cbCategory").setText(QStringLiteral("Friends"));
    clickFavesEntry(kFirstFavourite);
    EXPECT_EQ(control<ListBox>("lstMain").Text(), kAnna);
    EXPECT_EQ(mainControls().lblTitle->text(), QStringLiteral("Biorhythm for Anna Smith"));
}

TEST_F(CommandsTest, SayThatAFavouriteIsGone) {
    writeFavourite({9, QStringLiteral("Gone, Gil")});
    startWith(kAnna);
    expectMessage(
        "This person appears to have been removed from the database. Please update your "
        "favourites.");
    clickFavesEntry(kFirstFavourite);
    EXPECT_EQ(control<ComboBox>("cbCategory").Text(), QStringLiteral("*"));
    EXPECT_EQ(control<ListBox>("lstMain").ListIndex(), -1);
}

TEST_F(CommandsTest, ReportTheFileThatIsGoneBehindAnEntry) {
    writeFavourite({1, kAnna});
    start();
    QFile::remove(fileOf(kAnna));
    host_.expectMessage(
        QStringLiteral("File not found: there is no file of this name, %1. Please report this "
                       "error to the author.")
            .arg(QDir::toNativeSeparators(fileOf(kAnna))));
    clickFavesEntry(kFirstFavourite);
    EXPECT_EQ(host_.exitCode(), std::nullopt);
}

TEST_F(CommandsTest, ReportAFavouriteThatIsNoRecord) {
    const std::pair<const char*, const char*> files[] = {
        {"", "Input past end of file. Please report this error to the author."},
        {"1,\"Smith, An", "Input past end of file. Please report this error to the author."},
        {"\x80,\"\xC3(\"", "Type mismatch. Please report this error to the author."}};
    makeFile(fileOf(kAnna));
    startWith(QStringLiteral("Zed"));
    for (const auto& [bytes, report] : files) {
        makeFile(fileOf(kAnna), bytes);
        expectMessage(report);
        clickFavesEntry(kFirstFavourite);
    }
    EXPECT_EQ(control<ListBox>("lstMain").Text(), QStringLiteral("Zed"));
}

TEST_F(CommandsTest, DoNothingForTheSeparator) {
    startWith(kAnna);
    clickFavesEntry(3);
    EXPECT_EQ(favesMenu().Count(), 3);
}

}  // namespace
