// The group comparison, driven as its user does.
#pragma once

#include <QLabel>
#include <QLineEdit>

#include "analyses/frmGroup.h"
#include "controls/button_bar.h"
#include "controls/button_menu.h"
#include "controls/combo_box.h"
#include "controls/date_picker.h"
#include "controls/file_list_box.h"
#include "controls/grid.h"
#include "controls/list_box.h"
#include "controls/picture_button.h"
#include "runtime/event.h"
#include "shell/frmMain.h"
#include "support/main_window.h"

// Smith, Anna is of the family; Adler, Ben and Zed are friends.
class GroupTest : public MainWindowTest {
  protected:
    void open() {
        load();
        form_ = std::make_unique<frmGroup>(&window());
        runEvent([this] { form_->Show(); });
    }

    template <class Control>
    Control& of(const char* name) {
        return child<Control>(*form_, QString::fromLatin1(name));
    }

    ListBox& total() { return of<ListBox>("lstTotal"); }
    ListBox& group() { return of<ListBox>("lstGroup"); }
    ComboBox& categories() { return of<ComboBox>("cbCats"); }
    FileListBox& files() { return of<FileListBox>("flFaves"); }
    ButtonMenu& faves() { return *form_->findChild<ButtonMenu*>(); }
    Grid& grid() { return of<Grid>("grdGroup"); }
    QLineEdit& groupName() { return of<QLineEdit>("txtGroupName"); }

    QString textOf(const char* label) { return of<QLabel>(label).text(); }
    bool isShown(const char* control) { return of<QWidget>(control).isVisible(); }
    bool isEnabled(const char* control) { return of<QWidget>(control).isEnabled(); }

    static QStringList textsOf(const ListControl& list) {
        QStringList texts;
        for (const ListEntry& entry : list.all())
            texts += entry.text;
        return texts;
    }

    static std::vector<Long> numbersOf(const ListControl& list) {
        std::vector<Long> numbers;
        for (const ListEntry& entry : list.all())
            numbers.push_back(entry.itemData);
        return numbers;
    }

    // The cells of a row of the grid, divided by bars.
    QString row(int row) {
        QStringList texts;
        for (int column = 0; column < grid().cells().Cols(); ++column)
            texts += grid().cells().TextMatrix(row, column);
        return texts.join(u'|');
    }

    // The names in the rows below the header.
    QStringList compared() {
        QStringList names;
        for (int row = 2; row < grid().cells().Rows(); ++row)
            names += grid().cells().TextMatrix(row, 0);
        return names;
    }

    Long colour(int row, int column) { return grid().cells().look(row, column).foreColor; }

    void press(const char* button) { of<PictureButton>(button).click(); }

    void clickTab(int item) {
        click(child<QWidget>(*form_, QStringLiteral("bbGroup_%1").arg(item)));
    }

    void add(const QString& displayText) {
        total().setText(displayText);
        press("cmdAdd");
    }

    void addAll() { press("cmdAddAll"); }

    void pickDate(Date date) {
        static_cast<QDateEdit&>(of<DatePicker>("dtpGroup"))
            .setDate(QDate(modCycles::Year(date), modCycles::Month(date), modCycles::Day(date)));
    }

    static void clickEntry(ListBox& list, int entry) {
        click(*list.viewport(), list.visualRect(list.model()->index(entry, 0)).center());
    }

    static void doubleClickEntry(ListBox& list, int entry) {
        doubleClick(*list.viewport(), list.visualRect(list.model()->index(entry, 0)).center());
    }

    // Presses a key where the user's keys go.
    void press(Qt::Key key) {
        pressKey(form_->focusWidget() ? *form_->focusWidget() : *form_, key);
    }

    void pressEsc() { press(Qt::Key_Escape); }

    // Acts while the next run yields after so many rows or records.
    void duringYield(int number, std::function<void()> act) {
        const int before = host_.yields();
        host_.onYield([this, before, number, act] {
            if (host_.yields() == before + number)
                act();
        });
    }

    bool isLocked() {
        const std::vector<const char*> locked{
            "cmdTransfer", "lstGroup",  "lstTotal",     "cbCats",   "cmdAdd",
            "cmdAddAll",   "cmdRemove", "cmdRemoveAll", "dtpGroup", "bbGroup_1",
            "bbGroup_2",   "bbGroup_3", "bbGroup_4",    "cmdClose"};
        const auto isOff = [this](const char* control) { return !isEnabled(control); };
        const bool first = isOff(locked.front());
        for (const char* control : locked)
            EXPECT_EQ(isOff(control), first) << control;
        return first;
    }

    // Nothing of a run is left to be seen.
    void expectIdle() {
        EXPECT_FALSE(isLocked());
        EXPECT_TRUE(isShown("lstGroup"));
        EXPECT_FALSE(isShown("lblProc"));
        EXPECT_EQ(textOf("lblCancel"), QString());
    }

    void expectMessage(const char* text) { host_.expectMessage(QString::fromUtf8(text)); }

    void expectReport(const QString& error) {
        host_.expectMessage(error + QStringLiteral(". Please report this error to the author."));
    }

    const QString kAnna = QStringLiteral("Smith, Anna");
    const QString kBen = QStringLiteral("Adler, Ben");
    const QString kZed = QStringLiteral("Zed");
    const Date kAnnaBorn = modCycles::DateSerial(1972, 10, 20);

    std::unique_ptr<frmGroup> form_;
};
