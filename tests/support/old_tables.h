// The tables of old databases, for tests of what becomes of them.
#pragma once

#include <QString>

#include "support/files.h"
#include "support/jet_builder.h"

inline BuiltTable oldCategories(std::vector<BuiltRow> rows) {
    return {.name = QStringLiteral("Category"),
            .columns = {{QStringLiteral("CatID"), JetType::Int32},
                        {QStringLiteral("Category"), JetType::Text, 50}},
            .rows = std::move(rows)};
}

inline BuiltTable oldPeople(std::vector<BuiltRow> rows) {
    return {.name = QStringLiteral("Data"),
            .columns = {{QStringLiteral("NameID"), JetType::Int32},
                        {QStringLiteral("Name"), JetType::Text, 50},
                        {QStringLiteral("FName"), JetType::Text, 50},
                        {QStringLiteral("Birthdate"), JetType::Date},
                        {QStringLiteral("Gender"), JetType::Boolean},
                        {QStringLiteral("CatID"), JetType::Int32},
                        {QStringLiteral("Notes"), JetType::Memo}},
            .rows = std::move(rows)};
}

inline BuiltTable oldInterpretations(std::vector<BuiltRow> rows) {
    return {.name = QStringLiteral("HLC"),
            .columns = {{QStringLiteral("Emot"), JetType::Int16},
                        {QStringLiteral("Phys"), JetType::Int16},
                        {QStringLiteral("Intel"), JetType::Int16},
                        {QStringLiteral("interp"), JetType::Memo}},
            .rows = std::move(rows)};
}

inline BuiltRow oldCategory(Long catId, const char* name) {
    return {{catId, QString::fromUtf8(name)}};
}

inline BuiltRow oldPerson(Long nameId, const char* name, const Value& catId,
                          const Value& birthdate = 20514.0) {
    return {{nameId, QString::fromUtf8(name), Value(), birthdate, Value(true), catId, Value()}};
}

// A small database as it was, of Jet 4.
inline QByteArray oldDatabase() {
    return builtJet(4, {oldCategories({oldCategory(1, "Family"), oldCategory(2, "Friends")}),
                        oldPeople({oldPerson(1, "Adler", 1), oldPerson(7, "Berg", 2)})})
        .bytes;
}

// The same with somebody who has no birth date.
inline QByteArray oldDatabaseWithNoDate() {
    return builtJet(4, {oldCategories({oldCategory(1, "Family")}),
                        oldPeople({oldPerson(1, "Adler", 1), oldPerson(7, "Berg", 1, Value())})})
        .bytes;
}
