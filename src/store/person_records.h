// The records of favourite and group files.
#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "cycles/integers.h"

// A person as such a file names one: a line of the number in decimal digits, a comma, and the
// display text in double quotes, ended by CR LF.
struct PersonRecord {
    Long nameId;
    QString displayText;

    friend bool operator==(const PersonRecord&, const PersonRecord&) = default;
};

// The lines of the records. A double quote in a text is written as it stands.
QString writtenRecords(const std::vector<PersonRecord>& records);

// Gives all records away, one after the other. A text ends at its second double quote; what is left
// of its line is passed over. Raises 62 where a record breaks off, 13 where it does not begin with
// a number; those before it have been given away then.
using RecordTaker = std::function<void(const PersonRecord&)>;
void readRecords(const QString& lines, const RecordTaker& take);

// Reads the first record of a file that holds just one. Raises what readRecords raises, and 62 for
// no record at all.
PersonRecord readFirstRecord(const QString& lines);
