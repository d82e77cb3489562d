// The table of the wizard's steps, and its words.
#include "import/import_steps.h"

#include <array>

namespace importing {

namespace {

const std::array<Step, kWriting>& steps() {
    static const std::array<Step, kWriting> table{
        Step{.guidance = QStringLiteral(
                 "This wizard will guide you through the steps needed to import people from the "
                 "Ondara 1.0 database into your Ondara 2.0 database. Please select the location "
                 "of the names.mdb file (usually in C:\\Program Files\\Ondara)."),
             .page = QStringLiteral("pgLocation")},
        Step{.guidance = QStringLiteral("Select the people you wish to import by clicking the "
                                        "checkbox next to their name."),
             .page = QStringLiteral("pgSelection"),
             .focus = QStringLiteral("lstImport")},
        Step{},
        Step{.guidance = QStringLiteral(
                 "The following datafields have been selected for you by the wizard. Alter any "
                 "information by clicking on a name in the first column. Click \"Update\" to "
                 "transfer the changes. Checking a checkbox indicates a female.\n"
                 "N.B. Clicking \"Back\" and \"Next\" will reset all fields."),
             .page = QStringLiteral("pgEditing"),
             .nextCaption = QStringLiteral("&Next >"),
             .focus = QStringLiteral("lvImport")},
        Step{.guidance = QString(),
             .page = QStringLiteral("pgFinish"),
             .nextCaption = QStringLiteral("&Finish"),
             .closing = QStringLiteral("Congratulations! You've completed the necessary steps to "
                                       "import the data into Ondara 2.0. Press \"Finish\" to "
                                       "complete the import.")},
        Step{.showsImported = true}};
    return table;
}

}  // namespace

bool isStep(Integer step) {
    return step >= kLocation && step <= kWriting;
}

std::optional<Integer> stepAfter(Integer step) {
    if (step >= kWriting)
        return std::nullopt;
    return static_cast<Integer>(step + 1);
}

std::optional<Integer> stepBefore(Integer step) {
    switch (step) {
        case kLocation:
            return std::nullopt;
        case kEditing:
            return kSelection;
        default:
            return static_cast<Integer>(step - 1);
    }
}

const Step& step(Integer step) {
    Q_ASSERT(isStep(step));
    return steps()[static_cast<std::size_t>(step - kLocation)];
}

QString closingWords(bool failed) {
    return failed ? QStringLiteral(
                        "An error occurred. Click \"Back\" to correct any erroneous "
                        "data. The box below shows which people have been imported "
                        "successfully.")
                  : QStringLiteral("Ready! Click \"Close\" to return to the programme.");
}

QString noSuchFile() {
    return QStringLiteral("File not found. Please specify the path of Names.mdb.");
}

QString notEveryoneAssigned() {
    return QStringLiteral("Not everyone has been assigned to a catergory yet.");
}

QString nobodyToImport() {
    return QStringLiteral("Please select people first.");
}

}  // namespace importing
