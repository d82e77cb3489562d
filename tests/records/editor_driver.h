// What the tests of the record editors share: one stands over the main window, and its user acts.
#pragma once

#include <QAbstractButton>
#include <QCheckBox>
#include <QCoreApplication>
#include <QDir>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

#include "controls/combo_box.h"
#include "controls/list_box.h"
#include "runtime/event.h"
#include "shell/frmMain.h"
#include "shell/handover.h"
#include "support/errors.h"
#include "support/main_window.h"

template <class Editor>
class EditorTest : public MainWindowTest {
  protected:
    ~EditorTest() override { modCycles::SelectedNameID = 0; }

    // Shows the editor over the main window, as its command does.
    Editor& open() {
        if (Form::forms().empty())
            load();
        editor_.reset();
        editor_ = std::make_unique<Editor>(&window());
        runEvent([this] { editor_->Show(); });
        return *editor_;
    }

    // Shows it on the person who is handed over.
    Editor& openOn(Long nameId) {
        modCycles::SelectedNameID = nameId;
        return open();
    }

    void openOverChosen(const QString& displayText) {
        loadAndChoose(displayText);
        open();
    }

    Editor& editor() { return *editor_; }

    // A control of the editor by its name.
    template <class Control>
    Control& in(const char* name) {
        return child<Control>(*editor_, QString::fromLatin1(name));
    }

    QString textOf(const char* box) { return in<QLineEdit>(box).text(); }
    QString labelOf(const char* label) { return in<QLabel>(label).text(); }
    QString status() { return labelOf("lblStatus"); }
    bool isEditing() { return in<QWidget>("cmdUpdate").isVisible(); }

    // Presses a button that the user can press.
    void press(const char* button) {
        auto& pressed = in<QAbstractButton>(button);
        ASSERT_TRUE(pressed.isVisible() && pressed.isEnabled()) << button;
        pressed.click();
    }

    void pressTimes(int times, const char* button) {
        for (int time = 0; time < times; ++time)
            press(button);
    }

    // Types a text in the place of the one that is there.
    void enter(const char* box, const QString& text) {
        auto& field = in<QLineEdit>(box);
        field.setFocus();
        field.selectAll();
        pressKey(field, Qt::Key_Delete);
        type(field, text);
    }

    // Presses a key in the control that has the focus.
    void key(Qt::Key key) { pressKey(receiverOfKeys(), key); }
    void keyWithCtrl(Qt::Key key) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::ControlModifier);
        QCoreApplication::sendEvent(&receiverOfKeys(), &press);
    }

    void close() { press("cmdClose"); }

    // The first value that a query of the person database returns.
    Value stored(const char* query) const {
        return valueOf(directory_.people(), QString::fromLatin1(query));
    }

    void runOnStore(const char* sql) { runSql(directory_.people(), QString::fromLatin1(sql)); }

    // The main window's list, and whether it still shows the person who was chosen.
    ListBox& people() { return control<ListBox>("lstMain"); }
    bool isSomebodyChosen() { return people().ListIndex() != -1; }

    // What an error of the person database says of its cause.
    QString aboutPeople(const QString& cause) const {
        return cause + QStringLiteral(", ") + QDir::toNativeSeparators(directory_.people());
    }

    // Expects the trap's box.
    void expectTrap(const QString& description) {
        host_.expectMessage(description +
                            QStringLiteral(". Please report this error to the author."));
    }

  private:
    QWidget& receiverOfKeys() {
        return editor_->focusWidget() ? *editor_->focusWidget() : *editor_;
    }

    std::unique_ptr<Editor> editor_;
};
