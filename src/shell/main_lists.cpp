// The fillers of the main window's lists.
#include "shell/main_lists.h"

#include "controls/combo_box.h"
#include "controls/list_box.h"
#include "controls/status_bar.h"
#include "shell/main_chart.h"
#include "shell/main_controls.h"
#include "store/list_fillers.h"

namespace modCycles {

namespace {

void showNobodyChosen() {
    ShowBlankChart();
    askForPerson();
}

}  // namespace

void askForPerson() {
    mainControls().sbMain->setPanelText(QStringLiteral("Select a person from the list"));
}

void FillPersonList() {
    fillPeople(*mainControls().lstMain);
    showNobodyChosen();
}

void FillCategoryList() {
    const std::vector<ListEntry> categories = readCategoryFilter();
    mainControls().cbCategory->fill(categories);
    mainControls().listCats->fill(categories);
    mainControls().cbCategory->setListIndex(kEverybody);
    showNobodyChosen();
}

void FillPersonListByCategory() {
    const ComboBox& filter = *mainControls().cbCategory;
    if (filter.ListIndex() == -1)
        return;
    if (filter.ListIndex() == kEverybody) {
        FillPersonList();
        return;
    }
    fillPeopleOfCategory(*mainControls().lstMain, filter.ItemData(filter.ListIndex()));
    showNobodyChosen();
}

}  // namespace modCycles
