// What the tests of the import wizard share: it stands over the main window, there is an old
// database, and its user acts.
#pragma once

#include <QAbstractButton>
#include <QLabel>

#include "controls/check_list_box.h"
#include "controls/combo_box.h"
#include "controls/date_picker.h"
#include "controls/list_view.h"
#include "controls/multi_line_text_box.h"
#include "controls/progress_bar.h"
#include "controls/text_box.h"
#include "import/frmImport.h"
#include "runtime/event.h"
#include "shell/frmMain.h"
#include "support/main_window.h"

class ImportTest : public MainWindowTest {
  protected:
    // Three people, the first born on 20 October 1972, the others one and two days later.
    ImportTest() { makeOld(old_, {"'Doe, John'", "'Jane Roe'", "'Smith'"}); }

    void makeOld(const QString& path, const std::vector<const char*>& names) {
        runSql(path, QStringLiteral("CREATE TABLE Data (Name, birthdate REAL)"));
        int birthdate = 26592;
        for (const char* name : names)
            runSql(path, QStringLiteral("INSERT INTO Data VALUES (%1, %2)")
                             .arg(QString::fromUtf8(name), QString::number(birthdate++)));
    }

    // Shows the wizard over the main window.
    frmImport& open() {
        wizard_ = std::make_unique<frmImport>(&load());
        runEvent([this] { wizard_->Show(); });
        return *wizard_;
    }

    frmImport& wizard() { return *wizard_; }

    // A control of the wizard by its name.
    template <class Control>
    Control& in(const char* name) {
        return child<Control>(*wizard_, QString::fromLatin1(name));
    }

    QString captionOf(const char* button) { return in<QAbstractButton>(button).text(); }
    QString guidance() { return in<QLabel>("lblIntro").text(); }
    QString closing() { return in<QLabel>("lblFinish").text(); }
    QString imported() { return in<MultiLineTextBox>("txtFinish").Text(); }
    bool isShown(const char* control) { return in<QWidget>(control).isVisibleTo(&wizard()); }
    bool isEnabled(const char* control) { return in<QWidget>(control).isEnabled(); }
    CheckListBox& names() { return in<CheckListBox>("lstImport"); }
    ListView& rows() { return in<ListView>("lvImport"); }

    void press(const char* button) { in<QAbstractButton>(button).click(); }

    // Answers the dialog with a file.
    void browse(const QString& path) {
        host_.expectFileQuestion(ChosenFile{path, 1});
        press("cmdBrowse");
    }

    void expectTrap(const QString& description) {
        host_.expectMessage(description +
                            QStringLiteral(". Please report this error to the author."));
    }

    // Shows the wizard on the selection of the people of the old database.
    void openSelection() {
        open();
        browse(old_);
        press("cmdNext");
    }

    // The same with some of them selected, whose rows are shown then.
    void openRows(const std::vector<int>& selected = {0, 1, 2}) {
        openSelection();
        for (const int name : selected)
            names().setSelected(name, true);
        press("cmdNext");
        EXPECT_EQ(wizard_->ImportStep, importing::kEditing);
    }

    // The same with everybody in the category Family, ready to be written.
    void openConfirmation() {
        openRows();
        press("cmdAssign");
        press("cmdNext");
        EXPECT_EQ(wizard_->ImportStep, importing::kConfirmation);
    }

    QStringList textsOf(int row) { return rows().ListItem(row).texts; }

    QStringList lastNames() {
        QStringList lastNames;
        for (int row = 1; row <= rows().ListCount(); ++row)
            lastNames += textsOf(row).first();
        return lastNames;
    }

    // The first value that a query of the person database returns.
    Value stored(const char* query) const {
        return valueOf(directory_.people(), QString::fromLatin1(query));
    }

    Long peopleStored() const { return stored("SELECT count(*) FROM Data").toLong(); }

    static constexpr Long kStoredBefore = 3;

    const QString old_ = directory_.path(QStringLiteral("Names.mdb"));

  private:
    std::unique_ptr<frmImport> wizard_;
};
