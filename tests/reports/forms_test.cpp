// What holds for every form, for those of the reports.
#include "reports/dlgScreenPrinter.h"
#include "reports/frmDailyReport.h"
#include "support/every_form.h"

namespace {

using Forms = testing::Types<Drawn<dlgScreenPrinter, OnEscape::Stays>,
                             Drawn<frmDailyReport, OnEscape::Closes>>;
INSTANTIATE_TYPED_TEST_SUITE_P(Reports, EveryForm, Forms);

}  // namespace
