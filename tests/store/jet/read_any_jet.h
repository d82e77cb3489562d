// What must hold for whatever somebody takes for a Jet file.
#pragma once

#include <QByteArray>
#include <QString>
#include <algorithm>

#include "runtime/errors.h"
#include "store/jet/jet_file.h"

// What a table holds; 0 and 0 for one that ends in an error before its first row.
struct JetContents {
    qsizetype rows = 0;
    qsizetype characters = 0;
};

inline JetContents contentsOf(const JetTable& table) {
    QStringList names;
    for (const JetColumn& column : table.columns()) {
        if (isReadable(column.type))
            names += column.name;
    }
    JetContents contents;
    try {
        JetRows rows = table.rows(names);
        while (rows.next()) {
            ++contents.rows;
            for (const Value& value : rows.values()) {
                if (const auto* text = std::get_if<QString>(&value.content()))
                    contents.characters += text->size();
            }
        }
    } catch (const RuntimeError&) {
        // One of the ends that a table may have.
    }
    return contents;
}

// Reads the tables of a file of any bytes to their ends, which may be errors: whether they held no
// more than the file does.
inline bool canReadAnyJet(const QByteArray& bytes) {
    constexpr qsizetype kTables = 4;
    try {
        const JetFile file(bytes, QStringLiteral("name"));
        const QStringList names = file.tables();
        return std::all_of(names.begin(), names.begin() + std::min(kTables, names.size()),
                           [&](const QString& name) {
                               const JetContents contents = contentsOf(file.table(name));
                               return contents.rows <= bytes.size() &&
                                      contents.characters <= bytes.size();
                           });
    } catch (const RuntimeError& error) {
        return !error.description.isEmpty();
    }
}
