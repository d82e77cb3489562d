// The numbers of an old table's rows.
#pragma once

#include <QString>
#include <unordered_set>

#include "store/old_database.h"

// Sees to it that each row has a number of its own, which is not 0: 0 stands for nobody and for no
// category. What has no such number is no table that Ondara has written.
class RowNumbers {
  public:
    // Of a field of a table. The database must outlive this.
    RowNumbers(const OldDatabase& database, QString table, QString field);

    // The number of another row. Raises 321 where it is Null, 0, or that of a former row.
    Long take(const Value& number);

    // The largest number that any row has had, so far as the file tells; at least 0.
    Long largest() const { return largest_; }

  private:
    const OldDatabase& database_;
    QString table_;
    QString field_;
    std::unordered_set<Long> taken_;
    Long largest_;
};
