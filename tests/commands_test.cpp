// The commands of the main window: what they ask for, what they open, and the favourites.
#include "commands.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

#include "analyses/frmBirthdayToday.h"
#include "controls/button_menu.h"
#include "controls/combo_box.h"
#include "controls/list_box.h"
#include "controls/picture_button.h"
#include "records/frmAddNew.h"
#include "records/frmZoom.h"
#include "shell/frmAbout.h"
#include "shell/frmMain.h"
#include "shell/frmManageFaves.h"
#include "shell/handover.h"
#include "shell/main_controls.h"
#include "store/favourites.h"
#include "support/main_window.h"
#include "support/next_form.h"

namespace {

const QString kAnna = QStringLiteral("Smith, Anna");

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

    ButtonMenu& favesMenu() { return *mainControls().mnuFaves; }

    void clickFavesEntry(int index) { Q_EMIT favesMenu().ButtonMenuClick(index); }

    void expectMessage(const char* text) { host_.expectMessage(QString::fromLatin1(text)); }

    QString fileOf(const QString& favourite) {
        return directory_.path(favourite + QStringLiteral(".ofp"));
    }

    void makeFile(const QString& favourite, const QByteArray& bytes) {
        QFile file(fileOf(favourite));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    // A command that tests for a person has the message, and one that does not has none.
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

TEST_F(CommandsTest, AskForNobodyWhoIsThere) {
    startWith(kAnna);
    for (const char* command : kNeedPerson)
        trigger(command);
    trigger("mnuViewDetails");
    EXPECT_TRUE(host_.messages().empty());
}

TEST_F(CommandsTest, HaveThePersonOfTheHiddenListOnceAQuickDateIsCharted) {
    start();
    trigger("mnuQuickBio");
    control<QPushButton>("cmdQuickGo").click();
    trigger("mnuFind");
    EXPECT_TRUE(host_.messages().empty());
}

TEST_F(CommandsTest, OpenTheFormsThatNeedNobodyWithoutAPerson) {
    start();
    expectForm<frmAddNew>("mnuAddNew");
    expectForm<frmBirthdayToday>("mnuBToday");
    expectForm<frmAbout>("mnuHelpAbout");
}

TEST_F(CommandsTest, ShowTheHelpFileByItsNameAlone) {
    start();
    host_.expectHelp(QStringLiteral("ondarahelp.chm"));
    trigger("mnuHelpContents");
    host_.expectHelp(QStringLiteral("ondarahelp.chm"));
    trigger("tlbMain_Help");
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
        QStringLiteral("Bad file name or number: no file can have this name, AC/DC.ofp. Please "
                       "report this error to the author."));
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
    makeFile(kAnna, {});
    startWith(QStringLiteral("Zed"));
    for (const auto& [bytes, report] : files) {
        makeFile(kAnna, bytes);
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

// The menu tree and the toolbar.

struct Entry {
    const char* name;
    const char* caption;
    const char* shortcut;
};

TEST_F(CommandsTest, StandInTheMenusUnderTheirNamesWithTheirKeys) {
    start();
    constexpr Entry kEntries[] = {{"mnuFileExplore", "E&xplore database", "F5"},
                                  {"mnuAddNew", "Add &new person wizard", "F2"},
                                  {"mnuFileAdd", "Manage &database", "Ctrl+A"},
                                  {"mnuFileCat", "&Manage Categories", "Ctrl+M"},
                                  {"mnuFileExit", "&Exit", "Ctrl+Q"},
                                  {"mnuViewHide", "&Show Panel", "Ctrl+S"},
                                  {"mnuViewRefresh", "&Refresh data", "Ctrl+R"},
                                  {"mnuReport", "Reports", ""},
                                  {"mnuViewDetails", "&Details", "Ctrl+D"},
                                  {"mnuMatchDabatase", "Match from the database", "F9"},
                                  {"mnuGroup", "Group biorhythms", "F8"},
                                  {"mnuQuickMatch", "&Quick Match", "F12"},
                                  {"mnuQuickBio", "Quick &Bio", "Ctrl+F1"},
                                  {"mnuFind", "&Find events", "F4"},
                                  {"mnuBToday", "&Birthday Calendar", "Ctrl+T"},
                                  {"mnuToolsImport", "&Import Ondara 1.0 database", ""},
                                  {"mnuHelpContents", "&Contents", "F1"},
                                  {"mnuHelpAbout", "&About Ondara 2.0", ""}};
    for (const Entry& entry : kEntries) {
        const QAction& action = window().command(entry.name);
        EXPECT_EQ(action.text().toStdString(), entry.caption);
        EXPECT_EQ(action.shortcut().toString().toStdString(), entry.shortcut) << entry.name;
        EXPECT_TRUE(action.isEnabled()) << entry.name;
    }
}

// The names of a menu's entries, "-" for a separator; those of a submenu follow its own.
QStringList namesIn(const QMenu& menu) {
    QStringList names;
    for (const QAction* entry : menu.actions()) {
        if (entry->isSeparator())
            names += QStringLiteral("-");
        else if (entry->menu())
            names += entry->menu()->objectName() + u'(' + namesIn(*entry->menu()).join(u' ') + u')';
        else
            names += entry->objectName();
    }
    return names;
}

TEST_F(CommandsTest, StandInTheMenusInTheirOrderBetweenSeparators) {
    start();
    const auto order = [this](const char* menu) {
        return namesIn(control<QMenu>(menu)).join(u' ').toStdString();
    };
    EXPECT_EQ(order("mnuFile"), "mnuFileExplore - mnuAddNew mnuFileAdd mnuFileCat - mnuFileExit");
    EXPECT_EQ(order("mnuView"), "mnuViewHide mnuViewRefresh - mnuReport - mnuViewDetails");
    EXPECT_EQ(order("mnuTools"),
              "mnuCompatibility(mnuMatchDabatase mnuGroup mnuQuickMatch) - mnuQuickBio mnuFind "
              "mnuBToday - mnuToolsImport");
    EXPECT_EQ(order("mnuHelp"), "mnuHelpContents - mnuHelpAbout");
    EXPECT_EQ(control<QMenu>("mnuFile").title(), QStringLiteral("&File"));
    EXPECT_EQ(control<QMenu>("mnuView").title(), QStringLiteral("&View"));
    EXPECT_EQ(control<QMenu>("mnuTools").title(), QStringLiteral("&Tools"));
    EXPECT_EQ(control<QMenu>("mnuCompatibility").title(), QStringLiteral("&Compatibility"));
    EXPECT_EQ(control<QMenu>("mnuHelp").title(), QStringLiteral("&Help"));
}

TEST_F(CommandsTest, StandOnTheToolbarInTheirOrderWithTips) {
    start();
    const std::pair<const char*, const char*> kButtons[] = {
        {"Add", "Explore database (F5)"}, {"Hide", "Show/Hide (Ctrl+S)"},
        {"Compat", "Compatibility (F9)"}, {"Group", "Group biorhythms (F8)"},
        {"Faves", "Favourites"},          {"Help", "Help"},
        {"About", "About Ondara 2.0"}};
    const QList<QAction*> buttons = control<QToolBar>("tlbMain").actions();
    ASSERT_EQ(buttons.size(), 7);
    for (int i = 0; i < buttons.size(); ++i) {
        EXPECT_EQ(buttons[i]->objectName().toStdString(),
                  std::string("tlbMain_") + kButtons[i].first);
        EXPECT_EQ(buttons[i]->toolTip().toStdString(), kButtons[i].second);
        EXPECT_FALSE(buttons[i]->icon().isNull());
    }
}

// The entries that are triggered while the buttons of the toolbar are pressed, in their order.
TEST_F(CommandsTest, AreGivenByTheToolbarAsByTheMenu) {
    start();
    std::vector<std::string> given;
    for (const char* entry : {"mnuFileExplore", "mnuViewHide", "mnuMatchDabatase", "mnuGroup",
                              "mnuHelpContents", "mnuHelpAbout"}) {
        QAction& action = window().command(entry);
        action.disconnect();
        QObject::connect(&action, &QAction::triggered, &action,
                         [&given, entry] { given.emplace_back(entry); });
    }
    for (QAction* button : control<QToolBar>("tlbMain").actions())
        button->trigger();
    EXPECT_EQ(given, (std::vector<std::string>{"mnuFileExplore", "mnuViewHide", "mnuMatchDabatase",
                                               "mnuGroup", "mnuHelpContents", "mnuHelpAbout"}));
}

TEST_F(CommandsTest, DropTheFavouritesDownFromTheirButton) {
    start();
    auto& bar = control<QToolBar>("tlbMain");
    auto* faves = qobject_cast<QToolButton*>(bar.widgetForAction(bar.actions()[4]));
    ASSERT_TRUE(faves);
    EXPECT_EQ(faves->menu(), &favesMenu());
    EXPECT_EQ(faves->popupMode(), QToolButton::InstantPopup);
    EXPECT_EQ(faves->text(), QStringLiteral("Favourites"));
}

TEST_F(CommandsTest, KeepTheKeysOfTheEnabledOnesInQuickMode) {
    start();
    window().Show();
    QApplication::setActiveWindow(&window());
    trigger("mnuQuickBio");
    std::vector<std::string> given;
    for (const char* entry : {"mnuFind", "mnuFileExplore", "mnuAddNew", "mnuMatchDabatase",
                              "mnuGroup", "mnuQuickMatch", "mnuViewDetails"}) {
        QAction& action = window().command(entry);
        action.disconnect();
        QObject::connect(&action, &QAction::triggered, &action,
                         [&given, entry] { given.emplace_back(entry); });
    }
    for (const Qt::Key key :
         {Qt::Key_F4, Qt::Key_F5, Qt::Key_F2, Qt::Key_F9, Qt::Key_F8, Qt::Key_F12})
        pressKey(window(), key);
    EXPECT_EQ(given, (std::vector<std::string>{"mnuFind", "mnuFileExplore", "mnuAddNew"}));
    given.clear();
    trigger("mnuQuickBio");
    for (const Qt::Key key : {Qt::Key_F9, Qt::Key_F8, Qt::Key_F12})
        pressKey(window(), key);
    EXPECT_EQ(given, (std::vector<std::string>{"mnuMatchDabatase", "mnuGroup", "mnuQuickMatch"}));
}

}  // namespace
