// The judgement of row_numbers.h.
#include "store/row_numbers.h"

#include <algorithm>
#include <utility>

RowNumbers::RowNumbers(const OldDatabase& database, QString table, QString field)
    : database_(database),
      table_(std::move(table)),
      field_(std::move(field)),
      largest_(std::max(0, database.lastNumber(table_))) {}

Long RowNumbers::take(const Value& number) {
    const Long taken = number.isNull() ? 0 : number.toLong();
    if (taken == 0)
        throw database_.objection(
            ErrorNumber::InvalidFileFormat,
            QStringLiteral("a row of table %1 has no %2").arg(table_, field_));
    if (!taken_.insert(taken).second)
        throw database_.objection(
            ErrorNumber::InvalidFileFormat,
            QStringLiteral("two rows of table %1 have the %2 %3").arg(table_, field_).arg(taken));
    largest_ = std::max(largest_, taken);
    return taken;
}
