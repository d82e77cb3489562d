// The values that may be too long for a row, such as memos.
#pragma once

#include <QByteArray>

#include "store/jet/byte_view.h"
#include "store/jet/jet_pages.h"
#include "store/jet/read_allowance.h"

// The bytes of a long value, wherever the field says that they lie: in the field itself, in a row
// of another page, or in a chain of them. A value that is not as long as the field says raises
// JetDamage, and so does a chain that runs in a circle.
QByteArray longValue(ByteView field, JetPages& pages, ReadAllowance& allowance);
