// The building of a report in a box, from the databases.
#pragma once

#include "cycles/integers.h"

class RichTextBox;

namespace modCycles {

// These write a whole document into the box and leave the caret at its end. Values are in per cent,
// unrounded. A colour that is neither 0 (black and white) nor 1 leaves the box empty. A person, a
// category, an interpretation or a database that is gone raises the error of the store.
void BuildDailyReport(Long personId, double emotional, double physical, double intellectual,
                      double average, Integer colour, RichTextBox& target);
void BuildMonthlyReport(Long personId, Integer colour, RichTextBox& target);

// Writes everybody into the box, which says that one must wait meanwhile. Raises 3021 for an empty
// database.
void BuildDatabaseOverview(RichTextBox& target);

}  // namespace modCycles
