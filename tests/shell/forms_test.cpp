// What holds for every form, for those of the shell.
#include "shell/frmAbout.h"
#include "shell/frmManageFaves.h"
#include "shell/frmSplash.h"
#include "shell/frmWait.h"
#include "support/every_form.h"

namespace {

using Forms = testing::Types<Drawn<frmMain, OnEscape::Stays>, Drawn<frmAbout, OnEscape::Closes>,
                             Drawn<frmManageFaves, OnEscape::Closes>,
                             Drawn<frmSplash, OnEscape::Closes>, Drawn<frmWait, OnEscape::Stays>>;
INSTANTIATE_TYPED_TEST_SUITE_P(Shell, EveryForm, Forms);

using MainWindowInQuickMode = MainWindowTest;

TEST_F(MainWindowInQuickMode, IsWalkedThroughFromLeftToRightAndFromTheTopDown) {
    load().Show();
    trigger("mnuQuickBio");
    EXPECT_EQ(objectionsToTabOrder(window()), Objections());
}

}  // namespace
