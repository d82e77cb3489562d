// People and categories for tests and benchmarks, written into a person database by its path.
#pragma once

#include <QString>

#include "cycles/calendar.h"
#include "store/value.h"

struct PersonRow {
    QString name = {};
    Value firstName = {};
    Value birthdate = Value(modCycles::DateSerial(1980, 6, 15));
    bool isFemale = false;
    Long catId = 1;
    Value notes = {};
};

// Writes a category and returns its CatID.
Long addCategory(const QString& database, const QString& category);

// Writes a person and returns the NameID.
Long addPerson(const QString& database, const PersonRow& person);

// Fills an empty database with so many people, spread over so many categories. The same numbers
// always give the same people: names of several languages, some without a first name, of both
// genders and born from 1900 on, in no order.
void addManyPeople(const QString& database, Long people, Long categories);

// Runs SQL on a database, which is made if it does not exist.
void runSql(const QString& database, const QString& sql);

// The first value of the first row that a query returns.
Value valueOf(const QString& database, const QString& query);
