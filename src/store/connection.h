// A connection to one of the database files.
#pragma once

#include <QString>
#include <memory>

#include "store/access.h"

namespace SQLite {
class Database;
}

// An open database file, closed when the connection goes. Every connection enforces the foreign
// keys, writes durably (rollback journal, full synchronisation), waits a short while for another
// process's lock, and orders texts as text_order.h says wherever the schema says NOCASE.
//
// Every failure is a RuntimeError whose description names the cause and the file: 53 a file that is
// missing, 70 one that is locked or read-only, 75 one whose folder cannot be written or that is a
// folder itself, 321 one that is damaged or is no database, 61 a full disk, 57 a failing one.
class Connection {
  public:
    // Opens the file named by "Data Source=" in the connection string. A backslash separates
    // folders on every system; the file's name matches without regard to case. A file that does
    // not exist is not made. A Jet file, of the time before SQLite, is read as a whole and can
    // never be changed.
    explicit Connection(const QString& connectionString, Access access = Access::ReadWrite);
    ~Connection();
    Connection(Connection&&) noexcept;
    Connection& operator=(Connection&&) noexcept;

    // The file's path.
    const QString& path() const { return path_; }

    SQLite::Database& database() { return *database_; }

  private:
    QString path_;
    std::unique_ptr<SQLite::Database> database_;
};
