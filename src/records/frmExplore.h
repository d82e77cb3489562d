// "Explore database": everybody in one table.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "controls/form.h"
#include "records/column_drag.h"
#include "store/connection.h"
#include "store/item_list.h"
#include "store/recordset.h"

namespace Ui {
class frmExplore;
}

// One row a person, read when the form opens and at each Refresh; nothing can be edited. A column
// that is dragged to the front is what the rows are sorted by. A double click opens the card of
// the current row's person. Loading raises what bindPeople raises.
class frmExplore final : public Form {
    Q_OBJECT

  public:
    explicit frmExplore(QWidget* owner = nullptr);
    ~frmExplore() override;

    // Sorts the rows by the two columns that stand leftmost.
    void DoSort();

    // The drag that is going on, if any.
    const ColumnDrag& drag() const { return drag_; }

  protected:
    void Form_Load() override;
    void Form_Unload() override;
    void Form_KeyDown(QKeyEvent& key) override;

  private:
    void cmdClose_Click();
    void cmdRefresh_Click();
    void MSHFlexGrid1_MouseDown(Qt::MouseButtons button, double x, double y);
    void MSHFlexGrid1_MouseMove(Qt::MouseButtons buttons, double x, double y);
    void MSHFlexGrid1_MouseUp();
    void MSHFlexGrid1_DragDrop();
    void MSHFlexGrid1_DblClick();

    void openRecordSets();
    void closeRecordSets();
    void fillGrid();
    void addCategories();
    std::vector<ListEntry> lookup() const;
    GridPoint mousePlace(double x, double y) const;

    std::unique_ptr<Ui::frmExplore> ui_;
    std::optional<Connection> connection_;
    std::optional<Recordset> people_;
    std::optional<Recordset> categories_;
    ColumnDrag drag_;
};
