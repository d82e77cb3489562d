// The tests that every form must pass. The tests of a room name its forms, one a line:
//
//   using Forms = testing::Types<Drawn<frmOne, OnEscape::Closes>, Drawn<frmTwo, OnEscape::Stays>>;
//   INSTANTIATE_TYPED_TEST_SUITE_P(Room, EveryForm, Forms);
#pragma once

#include <type_traits>

#include "shell/frmMain.h"
#include "shell/handover.h"
#include "shell/main_controls.h"
#include "support/form_rules.h"
#include "support/main_window.h"

// What a form does when Esc is pressed while it is idle.
enum class OnEscape { Stays, Closes };

// A form, and the letters for Alt that captions of old share in it.
template <class F, OnEscape Behaviour, char... SharedLetters>
struct Drawn {
    using Form = F;
    static constexpr OnEscape kOnEscape = Behaviour;
    static constexpr char kSharedLetters[] = {SharedLetters..., '\0'};
};

// The form is shown as its command shows it: over the main window, where a person is chosen and
// handed over.
template <class Row>
class EveryForm : public MainWindowTest {
  protected:
    using Shown = typename Row::Form;

    EveryForm() {
        frmMain& main = loadAndChoose(QStringLiteral("Smith, Anna"));
        modCycles::SelectedNameID = chosenNameId();
        if constexpr (std::is_same_v<Shown, frmMain>) {
            form_ = &main;
        } else {
            if constexpr (std::is_constructible_v<Shown, QWidget*>)
                owned_ = std::make_unique<Shown>(&main);
            else
                owned_ = std::make_unique<Shown>();
            form_ = owned_.get();
        }
        form_->Show();
    }

    ~EveryForm() override { modCycles::SelectedNameID = 0; }

    Form& form() { return *form_; }

    // Where the user's keys go.
    QWidget& focused() { return form_->focusWidget() ? *form_->focusWidget() : *form_; }

  private:
    std::unique_ptr<Form> owned_;
    Form* form_ = nullptr;
};

TYPED_TEST_SUITE_P(EveryForm);

TYPED_TEST_P(EveryForm, IsWalkedThroughFromLeftToRightAndFromTheTopDown) {
    EXPECT_EQ(objectionsToTabOrder(this->form()), Objections());
}

TYPED_TEST_P(EveryForm, NamesItsControlsToWhoCannotSeeThem) {
    EXPECT_EQ(objectionsToNames(this->form()), Objections());
}

TYPED_TEST_P(EveryForm, GivesEachLetterToOneCaption) {
    EXPECT_EQ(objectionsToMnemonics(this->form(), TypeParam::kSharedLetters), Objections());
}

TYPED_TEST_P(EveryForm, FitsASmallScreen) {
    EXPECT_EQ(objectionsToSize(this->form()), Objections());
}

TYPED_TEST_P(EveryForm, DoesOnEscWhatIsItsWay) {
    pressKey(this->focused(), Qt::Key_Escape);
    EXPECT_EQ(this->form().isLoaded(), TypeParam::kOnEscape == OnEscape::Stays);
}

REGISTER_TYPED_TEST_SUITE_P(EveryForm, IsWalkedThroughFromLeftToRightAndFromTheTopDown,
                            NamesItsControlsToWhoCannotSeeThem, GivesEachLetterToOneCaption,
                            FitsASmallScreen, DoesOnEscWhatIsItsWay);
