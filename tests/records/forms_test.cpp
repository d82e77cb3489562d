// What holds for every form, for those of people and categories.
#include "records/dlgBZoom.h"
#include "records/frmAdd.h"
#include "records/frmAddNew.h"
#include "records/frmCategory.h"
#include "records/frmExplore.h"
#include "records/frmZoom.h"
#include "support/every_form.h"

namespace {

using Forms =
    testing::Types<Drawn<dlgBZoom, OnEscape::Stays>, Drawn<frmAdd, OnEscape::Closes>,
                   Drawn<frmAddNew, OnEscape::Stays>, Drawn<frmCategory, OnEscape::Closes>,
                   Drawn<frmExplore, OnEscape::Closes>, Drawn<frmZoom, OnEscape::Closes>>;
INSTANTIATE_TYPED_TEST_SUITE_P(Records, EveryForm, Forms);

}  // namespace
