// The floors: the same data got and written in the plainest way there is, to measure the program's
// own against.
//
// Each opens the file itself and works through SQLite, without record sets, events and widgets.
#pragma once

#include <SQLiteCpp/Database.h>

#include <QString>
#include <array>
#include <string>
#include <vector>

#include "cycles/integers.h"

struct PlainPerson {
    std::string text;
    Long nameId;
};

// All people, sorted byte by byte.
std::vector<PlainPerson> plainPeople(const QString& database);

// The people of one category, sorted byte by byte.
std::vector<PlainPerson> plainPeopleOfCategory(const QString& database, Long catId);

// The names of all categories.
std::vector<std::string> plainCategories(const QString& database);

// The birth date of a person, as days since 30 December 1899.
double plainBirthdate(const QString& database, Long nameId);

// The birth dates of all people, as days since 30 December 1899.
std::vector<double> plainBirthdates(const QString& database);

// The birth dates of the people with the first keys, each read by itself through one connection.
std::vector<double> plainBirthdatesOfFirst(const QString& database, Long people);

// The interpretation of a day on which every cycle is critical.
std::string plainInterpretation(const QString& database);

// The names of an old database.
std::vector<std::string> plainOldNames(const QString& database);

// Writes people, each durably by itself.
class PlainWriter {
  public:
    explicit PlainWriter(const QString& database);

    void setFirstName(Long nameId, const std::string& firstName);

    // Adds a man to the first category.
    void addPerson(const std::string& name, const std::string& firstName, double birthdate);

  private:
    SQLite::Database file_;
};

// The name, first name, birth date, gender, category and key of a person, as texts.
using PlainRow = std::array<std::string, 6>;

// All people, sorted by name byte by byte.
std::vector<PlainRow> plainTable(const QString& database);
