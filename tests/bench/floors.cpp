// The plain reading and writing of floors.h.
#include "bench/floors.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <algorithm>

namespace {

std::vector<PlainPerson> sortedPeople(SQLite::Statement rows) {
    std::vector<PlainPerson> people;
    while (rows.executeStep()) {
        std::string text = rows.getColumn(0).getText();
        if (const std::string first = rows.getColumn(1).getText(); !first.empty())
            text += ", " + first;
        people.push_back({std::move(text), rows.getColumn(2).getInt()});
    }
    std::sort(people.begin(), people.end(),
              [](const PlainPerson& a, const PlainPerson& b) { return a.text < b.text; });
    return people;
}

}  // namespace

std::vector<PlainPerson> plainPeople(const QString& database) {
    const SQLite::Database file(database.toStdString());
    return sortedPeople({file, "SELECT Name, FName, NameID FROM Data"});
}

std::vector<PlainPerson> plainPeopleOfCategory(const QString& database, Long catId) {
    const SQLite::Database file(database.toStdString());
    SQLite::Statement rows(file, "SELECT Name, FName, NameID FROM Data WHERE CatID = ?");
    rows.bind(1, catId);
    return sortedPeople(std::move(rows));
}

std::vector<std::string> plainCategories(const QString& database) {
    const SQLite::Database file(database.toStdString());
    SQLite::Statement rows(file, "SELECT Category FROM Category");
    std::vector<std::string> categories;
    while (rows.executeStep())
        categories.push_back(rows.getColumn(0).getText());
    return categories;
}

double plainBirthdate(const QString& database, Long nameId) {
    const SQLite::Database file(database.toStdString());
    SQLite::Statement row(file, "SELECT Birthdate FROM Data WHERE NameID = ?");
    row.bind(1, nameId);
    return row.executeStep() ? row.getColumn(0).getDouble() : 0;
}

std::vector<double> plainBirthdates(const QString& database) {
    const SQLite::Database file(database.toStdString());
    SQLite::Statement rows(file, "SELECT Birthdate FROM Data");
    std::vector<double> birthdates;
    while (rows.executeStep())
        birthdates.push_back(rows.getColumn(0).getDouble());
    return birthdates;
}

std::vector<double> plainBirthdatesOfFirst(const QString& database, Long people) {
    const SQLite::Database file(database.toStdString());
    SQLite::Statement row(file, "SELECT Birthdate FROM Data WHERE NameID = ?");
    std::vector<double> birthdates;
    for (Long nameId = 1; nameId <= people; ++nameId) {
        row.bind(1, nameId);
        if (row.executeStep())
            birthdates.push_back(row.getColumn(0).getDouble());
        row.reset();
    }
    return birthdates;
}

std::string plainInterpretation(const QString& database) {
    const SQLite::Database file(database.toStdString());
    SQLite::Statement row(file, "SELECT interp FROM HLC WHERE Emot = 0 AND Phys = 0 AND Intel = 0");
    return row.executeStep() ? row.getColumn(0).getText() : "";
}

std::vector<std::string> plainOldNames(const QString& database) {
    const SQLite::Database file(database.toStdString());
    SQLite::Statement rows(file, "SELECT Name FROM Data");
    std::vector<std::string> names;
    while (rows.executeStep())
        names.push_back(rows.getColumn(0).getText());
    return names;
}

PlainWriter::PlainWriter(const QString& database)
    : file_(database.toStdString(), SQLite::OPEN_READWRITE) {
    file_.exec("PRAGMA synchronous = FULL");
}

void PlainWriter::setFirstName(Long nameId, const std::string& firstName) {
    SQLite::Statement row(file_, "UPDATE Data SET FName = ? WHERE NameID = ?");
    row.bind(1, firstName);
    row.bind(2, nameId);
    row.exec();
}

void PlainWriter::addPerson(const std::string& name, const std::string& firstName,
                            double birthdate) {
    SQLite::Statement row(file_,
                          "INSERT INTO Data (Name, FName, Birthdate, Gender, CatID) "
                          "VALUES (?, ?, ?, 0, (SELECT min(CatID) FROM Category))");
    row.bind(1, name);
    row.bind(2, firstName);
    row.bind(3, birthdate);
    row.exec();
}

std::vector<PlainRow> plainTable(const QString& database) {
    const SQLite::Database file(database.toStdString());
    SQLite::Statement rows(file, "SELECT Name, FName, Birthdate, Gender, CatID, NameID FROM Data");
    std::vector<PlainRow> table;
    while (rows.executeStep()) {
        PlainRow& row = table.emplace_back();
        for (int field = 0; field < rows.getColumnCount(); ++field)
            row[static_cast<std::size_t>(field)] = rows.getColumn(field).getText();
    }
    std::sort(table.begin(), table.end());
    return table;
}
