// The table of the wizard's steps.
#include "records/wizard_steps.h"

#include <array>

namespace wizard {

namespace {

const std::array<Step, kDone>& steps() {
    static const QString nextCaption = QStringLiteral("&Next >");
    static const std::array<Step, kDone> table{
        Step{.guidance = QStringLiteral(
                 "Type a name in the textbox, e.g. \"John Doe\", and press Enter. If the derived "
                 "first and last name is not correct, press Edit and alter the names."),
             .page = QStringLiteral("pgName")},
        Step{.guidance = QStringLiteral("Type or select the date of birth."),
             .page = QStringLiteral("pgBirthdate"),
             .focus = QStringLiteral("dtpBDate")},
        Step{.guidance = QStringLiteral("Select the gender. Check for female."),
             .page = QStringLiteral("pgGender"),
             .focus = QStringLiteral("chkG")},
        Step{.guidance = QStringLiteral("Select an existing category or add a new one."),
             .page = QStringLiteral("pgCategory"),
             .focus = QStringLiteral("lstCats")},
        Step{.guidance = QStringLiteral("Type any notes about this person."),
             .page = QStringLiteral("pgNotes"),
             .nextCaption = nextCaption,
             .focus = QStringLiteral("txtNotes")},
        Step{.guidance = QStringLiteral("Check the data in the box. If all the information is "
                                        "correct, press Finish."),
             .page = QStringLiteral("pgSummary"),
             .nextCaption = QStringLiteral("&Finish"),
             .focus = QStringLiteral("txtFinal")},
        Step{},
        Step{.guidance = QStringLiteral("Done! Press Next to add another person, or Close to "
                                        "return to the programme."),
             .page = QStringLiteral("pgDone"),
             .nextCaption = nextCaption,
             .focus = QStringLiteral("cmdNext")}};
    return table;
}

}  // namespace

bool isStep(Integer step) {
    return step >= kName && step <= kDone;
}

Integer stepAfter(Integer step) {
    return step == kDone ? kName : static_cast<Integer>(step + 1);
}

Integer stepBefore(Integer step) {
    switch (step) {
        case kName:
            return kName;
        case kDone:
            return kSummary;
        default:
            return static_cast<Integer>(step - 1);
    }
}

const Step& step(Integer step) {
    Q_ASSERT(isStep(step));
    return steps()[static_cast<std::size_t>(step - kName)];
}

}  // namespace wizard
