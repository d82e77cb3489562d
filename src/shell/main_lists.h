// The lists of the main window: people, and the categories that filter them.
#pragma once

namespace modCycles {

// What the status bar says while no person is chosen.
void askForPerson();

// Lists all people. The chart goes blank and the selection is cleared, here and in the other two.
// Raises 3021 if there is nobody.
void FillPersonList();

// Lists the categories behind "*", which is selected and so lists all people again.
// Raises 3021 if there is no category.
void FillCategoryList();

// Lists the people whom the filter asks for, who may be nobody.
void FillPersonListByCategory();

}  // namespace modCycles
