// What holds for every form, for those of the analyses.
#include "analyses/frmBirthdayToday.h"
#include "analyses/frmCompat.h"
#include "analyses/frmCritical.h"
#include "analyses/frmFind.h"
#include "analyses/frmGroup.h"
#include "analyses/frmQuick.h"
#include "support/every_form.h"

namespace {

using Forms =
    testing::Types<Drawn<frmBirthdayToday, OnEscape::Closes>, Drawn<frmCompat, OnEscape::Closes>,
                   Drawn<frmCritical, OnEscape::Closes>, Drawn<frmFind, OnEscape::Stays, 'C'>,
                   Drawn<frmGroup, OnEscape::Stays>, Drawn<frmQuick, OnEscape::Closes>>;
INSTANTIATE_TYPED_TEST_SUITE_P(Analyses, EveryForm, Forms);

}  // namespace
