// The steps of the add-person wizard.
#pragma once

#include <QString>

#include "cycles/integers.h"

// The steps count from 1. Writing is left at once when it succeeds.
namespace wizard {

inline constexpr Integer kName = 1;
inline constexpr Integer kBirthdate = 2;
inline constexpr Integer kGender = 3;
inline constexpr Integer kCategory = 4;
inline constexpr Integer kNotes = 5;
inline constexpr Integer kSummary = 6;
inline constexpr Integer kWriting = 7;
inline constexpr Integer kDone = 8;

bool isStep(Integer step);

// Where Next and Back lead from a step. Next starts again after the last one. Back stays on the
// first, and goes from the last past the writing.
Integer stepAfter(Integer step);
Integer stepBefore(Integer step);

// What a step changes in the window; what it has no text for stays as it is.
struct Step {
    QString guidance = {};
    QString page = {};  // the name of the page with the step's controls
    QString nextCaption = {};
    QString focus = {};  // the name of the control that takes the focus
};

// What the step changes, which must be one.
const Step& step(Integer step);

}  // namespace wizard
