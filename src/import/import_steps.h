// The steps of the import wizard, and what it says.
#pragma once

#include <QString>
#include <optional>

#include "cycles/integers.h"

// The steps count from 1. The listing is left at once when it succeeds.
namespace importing {

inline constexpr Integer kLocation = 1;
inline constexpr Integer kSelection = 2;
inline constexpr Integer kListing = 3;
inline constexpr Integer kEditing = 4;
inline constexpr Integer kConfirmation = 5;
inline constexpr Integer kWriting = 6;

bool isStep(Integer step);

// Where Next and Back lead from a step; nothing where they do nothing. Back passes over the
// listing.
std::optional<Integer> stepAfter(Integer step);
std::optional<Integer> stepBefore(Integer step);

// What a step changes in the window; what it has no text for stays as it is.
struct Step {
    std::optional<QString> guidance = {};
    QString page = {};  // the name of the page with the step's controls
    QString nextCaption = {};
    QString focus = {};                   // the name of the control that takes the focus
    std::optional<QString> closing = {};  // the words above the people who have been imported
    bool showsImported = false;           // those people, and the progress
};

// What the step changes, which must be one.
const Step& step(Integer step);

// The words above the people who have been imported, once the writing has ended.
QString closingWords(bool failed);

// What the user is told where a step is refused.
QString noSuchFile();
QString notEveryoneAssigned();
QString nobodyToImport();

}  // namespace importing
