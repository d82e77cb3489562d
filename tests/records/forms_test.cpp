// What holds for every form, for those of people and categories.
#include "records/frmAddNew.h"
#include "support/every_form.h"

namespace {

using Forms = testing::Types<Drawn<frmAddNew, OnEscape::Stays>>;
INSTANTIATE_TYPED_TEST_SUITE_P(Records, EveryForm, Forms);

}  // namespace
