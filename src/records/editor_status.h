// What the label between the arrows of a record editor says.
#pragma once

#include <QString>

#include "cycles/integers.h"

// The place of the current row, as Recordset::AbsolutePosition counts it.
QString recordStatus(Long absolutePosition);

QString addStatus();
QString editStatus();
