// The copying of a Jet file's tables.
#include "store/jet_database.h"

#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>

#include <QStringList>
#include <functional>

#include "store/jet/jet_file.h"
#include "store/sql_pieces.h"

namespace {

std::string typeOf(JetType type) {
    switch (type) {
        case JetType::Boolean:
        case JetType::Byte:
        case JetType::Int16:
        case JetType::Int32:
            return " INTEGER";
        case JetType::Text:
        case JetType::Memo:
            return " TEXT COLLATE NOCASE";
        default:
            return " REAL";
    }
}

std::string declaration(const JetColumn& column) {
    return quoted(column.name.toStdString()) + typeOf(column.type);
}

// Fills a table with all rows, each with a value for every name.
void copyRows(JetRows rows, int fields, const std::string& table, SQLite::Database& database) {
    const std::vector<int> places(static_cast<std::size_t>(fields));
    SQLite::Statement insertion(
        database, "INSERT INTO " + table + " VALUES (" +
                      joined(places, ", ", [](int) { return std::string("?"); }) + ")");
    while (rows.next()) {
        for (int field = 0; field < fields; ++field)
            bindValue(insertion, field + 1, rows.values()[static_cast<std::size_t>(field)]);
        insertion.exec();
        insertion.reset();
    }
}

void copyTable(const JetTable& source, const QString& name, SQLite::Database& database) {
    std::vector<JetColumn> columns;
    QStringList names;
    for (const JetColumn& column : source.columns()) {
        if (!isReadable(column.type))
            continue;
        columns.push_back(column);
        names += column.name;
    }
    if (columns.empty())
        return;
    const std::string table = quoted(name.toStdString());
    database.exec("CREATE TABLE " + table + " (" + joined(columns, ", ", declaration) + ")");
    copyRows(source.rows(names), static_cast<int>(names.size()), table, database);
}

}  // namespace

std::unique_ptr<SQLite::Database> readJetDatabase(const QString& path) {
    const JetFile file(path);
    auto database = std::make_unique<SQLite::Database>(
        ":memory:", SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE | SQLite::OPEN_NOMUTEX);
    SQLite::Transaction transaction(*database);
    for (const QString& name : file.tables())
        copyTable(file.table(name), name, *database);
    transaction.commit();
    database->exec("PRAGMA query_only = ON");
    return database;
}
