// What tests of the Jet reader share.
#pragma once

#include <QStringList>
#include <initializer_list>
#include <vector>

#include "store/jet/jet_file.h"
#include "support/jet_builder.h"

using Rows = std::vector<std::vector<Value>>;

inline QString text(const char* utf8) {
    return QString::fromUtf8(utf8);
}

inline QStringList list(std::initializer_list<const char*> texts) {
    QStringList all;
    for (const char* one : texts)
        all += text(one);
    return all;
}

inline Rows rowsOf(const JetTable& table, const QStringList& columns) {
    JetRows rows = table.rows(columns);
    Rows all;
    while (rows.next())
        all.push_back(rows.values());
    return all;
}

inline Rows rowsOf(const JetFile& file, const char* table, const QStringList& columns) {
    return rowsOf(file.table(text(table)), columns);
}

inline QStringList columnNames(const JetTable& table) {
    QStringList names;
    for (const JetColumn& column : table.columns())
        names += column.name;
    return names;
}

// A text of so many characters, no two of its parts the same.
inline QString longText(int characters) {
    QString all;
    for (int line = 1; all.size() < characters; ++line)
        all += QStringLiteral("%1. line\r\n").arg(line);
    return all.left(characters);
}

// People with a field of every kind that Ondara's tables have.
inline BuiltTable builtPeople() {
    return {.name = text("Data"),
            .columns = {{text("NameID"), JetType::Int32},
                        {text("Name"), JetType::Text, 50},
                        {text("Birthdate"), JetType::Date},
                        {text("Gender"), JetType::Boolean},
                        {text("Notes"), JetType::Memo}},
            .rows = {{{1, text("Doe"), 20514.0, Value(true), text("Likes tea.")}},
                     {{2, text(""), -1.25, Value(false), text("")}, BuiltRow::Moved},
                     {{3, text("Gone"), 1.0, Value(true), text("Deleted.")}, BuiltRow::Deleted},
                     {{4, Value(), Value(), Value(false), Value()}},
                     {{5, text("Éloïse €"), 45657.5, Value(true), longText(100)}},
                     {{6, text("Long"), 1.0, Value(false), longText(2500)}, BuiltRow::MovedTwice},
                     {{7, text("Gone"), 1.0, Value(false), Value()}, BuiltRow::MovedAndDeleted},
                     {{8, text("Last"), 2958465.0, Value(true), text("x")}}}};
}

inline QStringList peopleColumns() {
    return list({"NameID", "Name", "Birthdate", "Gender", "Notes"});
}

// The rows that are to be found in such a table.
inline Rows liveRows(const BuiltTable& table) {
    Rows rows;
    for (const BuiltRow& row : table.rows) {
        if (row.fate != BuiltRow::Deleted && row.fate != BuiltRow::MovedAndDeleted)
            rows.push_back(row.values);
    }
    return rows;
}
