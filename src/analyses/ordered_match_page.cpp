// The event routines of the ordered match.
#include "analyses/ordered_match_page.h"

#include <QButtonGroup>
#include <optional>

#include "controls/combo_box.h"
#include "runtime/event.h"
#include "runtime/host.h"
#include "store/connection.h"
#include "store/databases.h"
#include "store/list_fillers.h"
#include "store/recordset.h"
#include "ui_ordered_match_page.h"

OrderedMatchPage::OrderedMatchPage(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::OrderedMatchPage>()) {
    ui_->setupUi(this);
    ui_->grdTop10->change([](GridCells& cells) {
        cells.setCols(kLastNumberColumn + 1);
        clearMatches(cells);
    });
    auto* optSort = new QButtonGroup(this);
    int index = 0;
    for (QRadioButton* option : {ui_->optSort_0, ui_->optSort_1, ui_->optSort_2, ui_->optSort_3})
        optSort->addButton(option, index++);
    onEvent(optSort, &QButtonGroup::idClicked, this, &OrderedMatchPage::optSort_Click);
    onEvent(ui_->cmdSearch, &PictureButton::Click, this, &OrderedMatchPage::cmdSearch_Click);
}

OrderedMatchPage::~OrderedMatchPage() = default;

void OrderedMatchPage::SetGrid() {
    ui_->grdTop10->change(::SetGrid);
    ui_->grdTop10->Refresh();
}

void OrderedMatchPage::search(Recordset& everybody, const ComparedPerson& person,
                              const ComboBox& categories) {
    Connection connection = openPersonDatabase();
    startAnew();
    if (categories.ListIndex() == -1) {
        tell(requestForCategory());
        return;
    }
    const MatchSelection selection{
        .filter = chosenFilter(),
        .catId = categories.ListIndex() == kEverybody
                     ? std::nullopt
                     : std::optional(categories.ItemData(categories.ListIndex()))};
    if (const auto statement = matchStatement(selection)) {
        Recordset people(connection, *statement);
        showMatches(people, person, selection);
    } else {
        showMatches(everybody, person, selection);
    }
}

void OrderedMatchPage::startAnew() {
    ui_->grdTop10->change(clearMatches);
    ui_->grdTop10->Refresh();
    ui_->grdTop10->setRedraw(false);
}

MatchFilter OrderedMatchPage::chosenFilter() const {
    if (ui_->optAll->isChecked())
        return MatchFilter::All;
    return ui_->optMale->isChecked() ? MatchFilter::Males : MatchFilter::Females;
}

void OrderedMatchPage::showMatches(Recordset& people, const ComparedPerson& person,
                                   const MatchSelection& selection) {
    if (people.RecordCount() == 0) {
        tell(nobodyToMatch(selection));
        SetGrid();
        return;
    }
    ui_->grdTop10->change([&](GridCells& cells) {
        addMatches(cells, people, person);
        sortMatches(cells, kAverageColumn);
        ::SetGrid(cells);
    });
    ui_->optSort_0->setChecked(true);
    ui_->grdTop10->setRedraw(true);
}

void OrderedMatchPage::tell(const QString& text) {
    host().showMessage({.text = text, .owner = window()});
}

void OrderedMatchPage::optSort_Click(int Index) {
    ui_->grdTop10->change(
        [Index](GridCells& cells) { sortMatches(cells, kAverageColumn + Index); });
}
