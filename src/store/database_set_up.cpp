// The settings of database_set_up.h.
#include "store/database_set_up.h"

#include <SQLiteCpp/Database.h>
#include <sqlite3.h>

#include "runtime/text_order.h"

namespace {

int compareForSqlite(void*, int lengthA, const void* a, int lengthB, const void* b) {
    const auto order = compareUtf8(QByteArrayView(static_cast<const char*>(a), lengthA),
                                   QByteArrayView(static_cast<const char*>(b), lengthB));
    return std::is_lt(order) ? -1 : std::is_gt(order) ? 1 : 0;
}

void enforceForeignKeys(SQLite::Database& database) {
    int inForce = 0;
    const int result =
        sqlite3_db_config(database.getHandle(), SQLITE_DBCONFIG_ENABLE_FKEY, 1, &inForce);
    if (result != SQLITE_OK || !inForce)
        throw SQLite::Exception("foreign keys are not enforced", result);
}

void replaceNocase(SQLite::Database& database) {
    const int result = sqlite3_create_collation_v2(database.getHandle(), "NOCASE", SQLITE_UTF8,
                                                   nullptr, compareForSqlite, nullptr);
    if (result != SQLITE_OK)
        throw SQLite::Exception(database.getHandle(), result);
}

}  // namespace

void setUpDatabase(SQLite::Database& database) {
    enforceForeignKeys(database);
    replaceNocase(database);
    // Reads the schema as well, so a file that is no database is refused here.
    database.exec("PRAGMA synchronous = FULL");
}
