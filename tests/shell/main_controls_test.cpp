// The main window's controls as every form reads them.
#include "shell/main_controls.h"

#include "controls/list_box.h"
#include "controls/month_view.h"
#include "shell/frmMain.h"
#include "support/errors.h"
#include "support/main_window.h"

namespace {

class MainControlsTest : public MainWindowTest {};

TEST_F(MainControlsTest, AreThoseOfTheMainWindow) {
    load();
    EXPECT_EQ(mainControls().lstMain, &control<ListBox>("lstMain"));
    EXPECT_EQ(mainControls().dtpSelDate, &control<MonthView>("dtpSelDate"));
    EXPECT_EQ(mainControls().listCats, &control<ListBox>("listCats"));
}

TEST_F(MainControlsTest, TellWhoIsChosen) {
    loadAndChoose(QStringLiteral("Zed"));
    EXPECT_EQ(chosenNameId(), 3);
    control<ListBox>("lstMain").setListIndex(-1);
    EXPECT_EQ(errorOf([] { (void)chosenNameId(); }), 381);
}

}  // namespace
