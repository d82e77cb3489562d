// What holds for every form, for that of the import.
#include "import/frmImport.h"
#include "support/every_form.h"

namespace {

// "Browse" and "Back" have always shared their letter.
using Forms = testing::Types<Drawn<frmImport, OnEscape::Stays, 'B'>>;
INSTANTIATE_TYPED_TEST_SUITE_P(Import, EveryForm, Forms);

}  // namespace
