// The steps of a comparison.
#include "analyses/group_comparison.h"

#include "analyses/group_cells.h"
#include "analyses/group_row.h"
#include "controls/grid.h"
#include "store/databases.h"
#include "store/recordset.h"
#include "store/statements.h"

namespace {

Grid& emptied(Grid& grid) {
    grid.change(clearGroup);
    grid.Refresh();
    grid.setRedraw(false);
    return grid;
}

}  // namespace

GroupComparison::GroupComparison(Grid& grid, Date date)
    : grid_(emptied(grid)), date_(date), connection_(openPersonDatabase()) {}

void GroupComparison::Add(const PersonRecord& member) {
    const Recordset person(connection_, statements::person(member.nameId));
    const QString row = groupRow(member.displayText, person.Fields(u"birthdate").toDate(), date_);
    grid_.AddItem(row, kGroupHeaderRows + rows_);
    ++rows_;
}

void GroupComparison::Finish() {
    grid_.change(setGroupGrid);
    grid_.setRedraw(true);
}
