// What the tests of the wizard share: it stands over the main window, and its user acts.
#pragma once

#include <QAbstractButton>
#include <QCoreApplication>
#include <QFocusEvent>
#include <QLineEdit>

#include "controls/list_box.h"
#include "controls/text_box.h"
#include "records/frmAddNew.h"
#include "runtime/event.h"
#include "shell/frmMain.h"
#include "support/main_window.h"

class WizardTest : public MainWindowTest {
  protected:
    // Shows the wizard over the main window.
    frmAddNew& open() {
        wizard_ = std::make_unique<frmAddNew>(&load());
        runEvent([this] { wizard_->Show(); });
        return *wizard_;
    }

    // Shows it with the least that can be written, John Doe of the category Family.
    void openWithEntries() {
        open();
        enterName(kJohnDoe);
        in<ListBox>("lstCats").setText(kFamily);
    }

    // Goes on with that to the summary.
    void openAtSummary() {
        openWithEntries();
        goTo(wizard::kSummary);
    }

    frmAddNew& wizard() { return *wizard_; }

    // A control of the wizard by its name.
    template <class Control>
    Control& in(const char* name) {
        return child<Control>(*wizard_, QString::fromLatin1(name));
    }

    QString textOf(const char* box) { return in<TextBox>(box).text(); }
    QString captionOf(const char* button) { return in<QAbstractButton>(button).text(); }
    bool isEnabled(const char* control) { return in<QWidget>(control).isEnabled(); }

    void press(const char* button) { in<QAbstractButton>(button).click(); }

    void enterName(const QString& name) {
        in<TextBox>("txtType").setText(name);
        pressKey(in<TextBox>("txtType"), Qt::Key_Return);
    }

    void enterCategory(const QString& category) {
        in<QLineEdit>("txtNewCat").setText(category);
        press("cmdAddCat");
    }

    void leave(const char* box) {
        QFocusEvent out(QEvent::FocusOut, Qt::TabFocusReason);
        QCoreApplication::sendEvent(&in<TextBox>(box), &out);
    }

    // Goes on by Next, which must lead there.
    void goTo(Integer step) {
        for (Integer presses = 0; presses < wizard::kDone && wizard_->WizardStep != step; ++presses)
            press("cmdNext");
        EXPECT_EQ(wizard_->WizardStep, step);
    }

    // The first value that a query of the person database returns.
    Value stored(const char* query) const {
        return valueOf(directory_.people(), QString::fromLatin1(query));
    }

    Long peopleStored() const { return stored("SELECT count(*) FROM Data").toLong(); }

    const QString kJohnDoe = QStringLiteral("John Doe");
    const QString kFamily = QStringLiteral("Family");

  private:
    std::unique_ptr<frmAddNew> wizard_;
};
