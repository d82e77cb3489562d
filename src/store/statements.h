// Every statement that Ondara sends, by name, letter for letter. No other SQL text exists in the
// program; the schema and the first contents are in data/.
#pragma once

#include <QString>

#include "cycles/integers.h"

namespace statements {

// People.
QString allPeopleWithNotes();  // all fields, in order of Name
QString allPeople();           // without Notes, in order of Name
QString person(Long nameId);   // all fields of one
QString peopleOfCategory(Long catId);
QString males();
QString malesOfCategory(Long catId);
QString females();
QString femalesOfCategory(Long catId);
QString birthdays();   // in order of Name, FName and Birthdate
QString wholeTable();  // to add rows to, and to read an old database

// Categories.
QString categories();
QString categoriesInOrder();

// The interpretation of a day; each state is -1 low, 0 critical or 1 high.
QString interpretation(Integer emotional, Integer physical, Integer intellectual);

// The rows of an old database, written into a new one.
QString addCategory();        // CatID, Category
QString addPerson();          // NameID, Name, FName, Birthdate, Gender, CatID, Notes
QString addInterpretation();  // Emot, Phys, Intel, interp; nothing where the table cannot hold it
QString setLastNumber();      // the last number that must not be used again, and the table

}  // namespace statements
