// A database that is being made.
#pragma once

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>

#include <QString>
#include <vector>

#include "store/value.h"

// A new file with tables, and rows for them in one transaction: without its end the file is none to
// be used. Errors are those of sqlite_errors.h.
class NewDatabase {
  public:
    // There must be no such file. The schema is the SQL of the tables.
    NewDatabase(const QString& path, const QString& schema);

    // Sends a statement with these values.
    void run(const QString& statement, const std::vector<Value>& values);

    // Waits until the disk has everything.
    void commit();

  private:
    friend class RowAdder;

    QString path_;
    SQLite::Database database_;
    SQLite::Transaction transaction_;
};

// Adds rows to a new database, all of them by one statement. The database must outlive this.
class RowAdder {
  public:
    RowAdder(NewDatabase& database, const QString& statement);

    void add(const std::vector<Value>& values);

  private:
    QString path_;
    SQLite::Statement statement_;
};
