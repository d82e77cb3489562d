// The statements of statements.h. Their spelling is the system's, capitals and blanks included.
#include "store/statements.h"

#include "runtime/numbers.h"

namespace statements {

QString allPeopleWithNotes() {
    return QStringLiteral(
        "select Name,FName,Birthdate,Gender,CatID,Notes,NameID from Data Order by Name");
}

QString allPeople() {
    return QStringLiteral(
        "select Name,FName,Birthdate,Gender,CatID,NameID from Data Order by Name");
}

QString person(Long nameId) {
    return QStringLiteral(
               "SELECT Birthdate, CatID, FName, Gender, Name, NameID, Notes FROM Data WHERE "
               "(NameID = ") +
           numberText(nameId) + u')';
}

QString peopleOfCategory(Long catId) {
    return QStringLiteral(
               "SELECT Birthdate, CatID, FName, Gender, Name, NameID FROM Data WHERE (CatID = ") +
           numberText(catId) + u')';
}

QString males() {
    return QStringLiteral(
        "SELECT Birthdate, CatID, FName, Gender, Name, NameID FROM Data WHERE (Gender = 0)");
}

QString malesOfCategory(Long catId) {
    return males() + QStringLiteral(" AND (CatID = ") + numberText(catId) + u')';
}

QString females() {
    return QStringLiteral(
        "SELECT Birthdate, CatID, FName, Gender, Name, NameID FROM Data WHERE (Gender = -1)");
}

QString femalesOfCategory(Long catId) {
    return females() + QStringLiteral(" AND (CatID = ") + numberText(catId) + u')';
}

QString birthdays() {
    return QStringLiteral(
        "SELECT Birthdate, FName, Name, NameID, Notes FROM Data ORDER BY Name, FName, Birthdate");
}

QString wholeTable() {
    return QStringLiteral("select * from Data");
}

QString categories() {
    return QStringLiteral("select CatID,Category from Category");
}

QString categoriesInOrder() {
    return QStringLiteral("select CatID,Category from Category Order by Category");
}

QString interpretation(Integer emotional, Integer physical, Integer intellectual) {
    return QStringLiteral("SELECT HLC.* FROM HLC WHERE Emot = ") + numberText(emotional) +
           QStringLiteral(" AND Phys = ") + numberText(physical) + QStringLiteral(" AND Intel = ") +
           numberText(intellectual);
}

QString addCategory() {
    return QStringLiteral("INSERT INTO Category (CatID, Category) VALUES (?, ?)");
}

QString addPerson() {
    return QStringLiteral(
        "INSERT INTO Data (NameID, Name, FName, Birthdate, Gender, CatID, Notes) "
        "VALUES (?, ?, ?, ?, ?, ?, ?)");
}

QString addInterpretation() {
    return QStringLiteral(
        "INSERT OR IGNORE INTO HLC (Emot, Phys, Intel, interp) VALUES (?, ?, ?, ?)");
}

QString setLastNumber() {
    return QStringLiteral("UPDATE sqlite_sequence SET seq = ? WHERE name = ?");
}

}  // namespace statements
