// The commands of the main window as it shows them: its menus, its toolbar and their keys.
#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

#include "controls/button_menu.h"
#include "controls/date_picker.h"
#include "shell/frmMain.h"
#include "shell/main_controls.h"
#include "support/main_window.h"

namespace {

class CommandsOfMainWindow : public MainWindowTest {
  protected:
    using Entries = std::vector<std::string>;

    // Writes down which of these entries are triggered from now on, and keeps them from doing more.
    void writeDown(const Entries& entries) {
        for (const std::string& entry : entries) {
            QAction& action = window().command(entry.c_str());
            action.disconnect();
            QObject::connect(&action, &QAction::triggered, &action,
                             [this, entry] { given_.push_back(entry); });
        }
    }

    Entries given() { return std::exchange(given_, {}); }

    void press(const std::vector<Qt::Key>& keys) {
        for (const Qt::Key key : keys)
            pressKey(window(), key);
    }

  private:
    Entries given_;
};

struct Entry {
    const char* name;
    const char* caption;
    const char* shortcut;
};

TEST_F(CommandsOfMainWindow, StandInTheMenusUnderTheirNamesWithTheirKeys) {
    load();
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

TEST_F(CommandsOfMainWindow, StandInTheMenusInTheirOrderBetweenSeparators) {
    load();
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

TEST_F(CommandsOfMainWindow, StandOnTheToolbarInTheirOrderWithTips) {
    load();
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

TEST_F(CommandsOfMainWindow, AreGivenByTheToolbarAsByTheMenu) {
    load();
    const Entries entries{"mnuFileExplore", "mnuViewHide",     "mnuMatchDabatase",
                          "mnuGroup",       "mnuHelpContents", "mnuHelpAbout"};
    writeDown(entries);
    for (QAction* button : control<QToolBar>("tlbMain").actions())
        button->trigger();
    EXPECT_EQ(given(), entries);
}

TEST_F(CommandsOfMainWindow, DropTheFavouritesDownFromTheirButton) {
    load();
    auto& bar = control<QToolBar>("tlbMain");
    auto* faves = qobject_cast<QToolButton*>(bar.widgetForAction(bar.actions()[4]));
    ASSERT_TRUE(faves);
    EXPECT_EQ(faves->menu(), mainControls().mnuFaves);
    EXPECT_EQ(faves->popupMode(), QToolButton::InstantPopup);
    EXPECT_EQ(faves->text(), QStringLiteral("Favourites"));
}

TEST_F(CommandsOfMainWindow, KeepTheirKeysFromTheQuickBirthDate) {
    load().Show();
    QApplication::setActiveWindow(&window());
    writeDown({"mnuFileAdd"});
    trigger("mnuQuickBio");
    auto& birthdate = control<DatePicker>("dtpQuickBio");
    birthdate.setFocus();
    QTest::keyClick(&birthdate, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(given(), Entries({"mnuFileAdd"}));
}

TEST_F(CommandsOfMainWindow, KeepTheKeysOfTheEnabledOnesInQuickMode) {
    load().Show();
    QApplication::setActiveWindow(&window());
    writeDown({"mnuFind", "mnuFileExplore", "mnuAddNew", "mnuMatchDabatase", "mnuGroup",
               "mnuQuickMatch"});
    trigger("mnuQuickBio");
    press({Qt::Key_F4, Qt::Key_F5, Qt::Key_F2, Qt::Key_F9, Qt::Key_F8, Qt::Key_F12});
    EXPECT_EQ(given(), Entries({"mnuFind", "mnuFileExplore", "mnuAddNew"}));
    trigger("mnuQuickBio");
    press({Qt::Key_F9, Qt::Key_F8, Qt::Key_F12});
    EXPECT_EQ(given(), Entries({"mnuMatchDabatase", "mnuGroup", "mnuQuickMatch"}));
}

}  // namespace
