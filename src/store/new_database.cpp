// The making of new_database.h.
#include "store/new_database.h"

#include "store/database_set_up.h"
#include "store/sql_pieces.h"
#include "store/sqlite_errors.h"

namespace {

SQLite::Database created(const QString& path) {
    SQLite::Database database(path.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    setUpDatabase(database);
    return database;
}

}  // namespace

NewDatabase::NewDatabase(const QString& path, const QString& schema)
    : path_(path),
      database_(raisingStoreErrors(path, [&] { return created(path); })),
      transaction_(database_) {
    raisingStoreErrors(path, [&] { database_.exec(schema.toStdString()); });
}

void NewDatabase::run(const QString& statement, const std::vector<Value>& values) {
    RowAdder(*this, statement).add(values);
}

void NewDatabase::commit() {
    raisingStoreErrors(path_, [this] { transaction_.commit(); });
}

RowAdder::RowAdder(NewDatabase& database, const QString& statement)
    : path_(database.path_), statement_(raisingStoreErrors(path_, [&] {
          return SQLite::Statement(database.database_, statement.toStdString());
      })) {}

void RowAdder::add(const std::vector<Value>& values) {
    raisingStoreErrors(path_, [&] {
        int place = 0;
        for (const Value& value : values)
            bindValue(statement_, ++place, value);
        statement_.exec();
        statement_.reset();
    });
}
