// What holds for every database that is opened or made.
#pragma once

namespace SQLite {
class Database;
}

// From here on the database enforces its foreign keys, waits for the disk at every commit, and
// orders texts as text_order.h says wherever its schema says NOCASE. To be called outside a
// transaction. Refuses a file that is no database, by SQLite's own exception.
void setUpDatabase(SQLite::Database& database);
