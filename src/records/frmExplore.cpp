// The event routines of the explorer.
#include "records/frmExplore.h"

#include "records/explorer_cells.h"
#include "records/frmZoom.h"
#include "runtime/event.h"
#include "runtime/numbers.h"
#include "shell/frmWait.h"
#include "store/databases.h"
#include "store/list_fillers.h"
#include "store/statements.h"
#include "ui_frmExplore.h"

frmExplore::frmExplore(QWidget* owner) : Form(owner), ui_(std::make_unique<Ui::frmExplore>()) {
    ui_->setupUi(this);
    onEvent(ui_->cmdClose, &PictureButton::Click, this, &frmExplore::cmdClose_Click);
    onEvent(ui_->cmdRefresh, &PictureButton::Click, this, &frmExplore::cmdRefresh_Click);
    Grid* grid = ui_->MSHFlexGrid1;
    onEvent(grid, &Grid::MouseDown, this, &frmExplore::MSHFlexGrid1_MouseDown);
    onEvent(grid, &Grid::MouseMove, this, &frmExplore::MSHFlexGrid1_MouseMove);
    onEvent(grid, &Grid::MouseUp, this, &frmExplore::MSHFlexGrid1_MouseUp);
    onEvent(grid, &Grid::DragDrop, this, &frmExplore::MSHFlexGrid1_DragDrop);
    onEvent(grid, &Grid::DblClick, this, &frmExplore::MSHFlexGrid1_DblClick);
}

frmExplore::~frmExplore() = default;

void frmExplore::Form_Load() {
    openRecordSets();
    ui_->MSHFlexGrid1->setRedraw(false);
    fillGrid();
    DoSort();
    ui_->MSHFlexGrid1->setRedraw(true);
    unloadWaitWindow();
}

void frmExplore::Form_Unload() {
    closeRecordSets();
}

void frmExplore::Form_KeyDown(QKeyEvent& key) {
    if (takeEsc(key))
        cmdClose_Click();
}

void frmExplore::cmdClose_Click() {
    Unload();
}

void frmExplore::cmdRefresh_Click() {
    Form_Load();
}

void frmExplore::openRecordSets() {
    closeRecordSets();
    connection_.emplace(explorerConnectionString());
    people_.emplace(*connection_, statements::allPeople(), adLockReadOnly);
    categories_.emplace(*connection_, statements::categories(), adLockReadOnly);
}

void frmExplore::closeRecordSets() {
    people_.reset();
    categories_.reset();
    connection_.reset();
}

void frmExplore::fillGrid() {
    addCategories();
    CategoryLookup categories(lookup());
    ui_->MSHFlexGrid1->change([&](GridCells& cells) {
        bindPeople(cells, *people_, categories);
        setUpColumns(cells);
        makeHeaderBold(cells);
        paintBands(cells);
    });
    ui_->lstCat->setListIndex(categories.lastEntry());
}

// The list is not cleared first: a Refresh adds every category again, behind those that are there.
void frmExplore::addCategories() {
    for (const ListEntry& category : categoryEntries(*categories_)) {
        ui_->lstCat->AddItem(category.text);
        ui_->lstCat->setItemData(ui_->lstCat->NewIndex(), category.itemData);
    }
}

std::vector<ListEntry> frmExplore::lookup() const {
    std::vector<ListEntry> entries;
    entries.reserve(static_cast<std::size_t>(ui_->lstCat->ListCount()));
    for (int entry = 0; entry < ui_->lstCat->ListCount(); ++entry)
        entries.push_back({ui_->lstCat->List(entry), ui_->lstCat->ItemData(entry)});
    return entries;
}

void frmExplore::DoSort() {
    Grid& grid = *ui_->MSHFlexGrid1;
    grid.setRedraw(false);
    grid.change([](GridCells& cells) {
        cells.setCol(0);
        cells.setColSel(1);
        cells.Sort(RowOrder::GenericAscending);
    });
    grid.setRedraw(true);
}

GridPoint frmExplore::mousePlace(double x, double y) const {
    return {x, y, ui_->MSHFlexGrid1->MouseRow(), ui_->MSHFlexGrid1->MouseCol()};
}

void frmExplore::MSHFlexGrid1_MouseDown(Qt::MouseButtons, double x, double y) {
    drag_.press(mousePlace(x, y));
}

void frmExplore::MSHFlexGrid1_MouseMove(Qt::MouseButtons buttons, double x, double y) {
    if (drag_.takeUp(mousePlace(x, y), buttons == Qt::LeftButton))
        ui_->MSHFlexGrid1->Drag(drag_.DragCol);
}

void frmExplore::MSHFlexGrid1_MouseUp() {
    drag_.release();
}

void frmExplore::MSHFlexGrid1_DragDrop() {
    Grid& grid = *ui_->MSHFlexGrid1;
    const int place = grid.MouseCol();
    const ColumnDrop drop = drag_.dropAt(grid.MouseRow(), place);
    if (drop == ColumnDrop::Nothing)
        return;
    grid.setRedraw(false);
    if (drop == ColumnDrop::OnHidden)
        return;
    grid.change([&](GridCells& cells) {
        cells.setColPosition(drag_.DragCol, place);
        repaintBands(cells);
    });
    DoSort();
    grid.setRedraw(true);
}

void frmExplore::MSHFlexGrid1_DblClick() {
    Grid& grid = *ui_->MSHFlexGrid1;
    grid.change([](GridCells& cells) { cells.setCol(kHiddenColumn); });
    showCard(wholeNumber(grid.cells().Text()), this);
}
