// The opening of connections.
#include "store/connection.h"

#include <SQLiteCpp/Database.h>
#include <sqlite3.h>

#include "runtime/text_order.h"
#include "store/connection_string.h"
#include "store/file_condition.h"
#include "store/jet/jet_file.h"
#include "store/jet_database.h"
#include "store/sqlite_errors.h"

namespace {

constexpr int kBusyTimeoutMilliseconds = 2000;

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

// One thread uses a connection, so SQLite needs no locks of its own.
int openFlags(Access access) {
    return (access == Access::Read ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE) |
           SQLITE_OPEN_NOMUTEX;
}

std::unique_ptr<SQLite::Database> openStore(const QString& path, Access access) {
    return std::make_unique<SQLite::Database>(path.toStdString(), openFlags(access),
                                              kBusyTimeoutMilliseconds);
}

std::unique_ptr<SQLite::Database> openDatabase(const QString& path, Access access) {
    auto database = isJetFile(path) ? readJetDatabase(path) : openStore(path, access);
    enforceForeignKeys(*database);
    replaceNocase(*database);
    // Reads the schema as well, so a file that is no database is refused here.
    database->exec("PRAGMA synchronous = FULL");
    return database;
}

void refuseUnfit(const FileCondition& condition, Access access, const QString& path) {
    if (const auto objection = objectionTo(condition, access, path))
        throw RuntimeError(*objection);
}

}  // namespace

Connection::Connection(const QString& connectionString, Access access)
    : path_(pathOfDataSource(dataSource(connectionString))) {
    FileCondition condition = conditionOf(path_, access);
    refuseUnfit(condition, access, path_);
    database_ = raisingStoreErrors(path_, [&] { return openDatabase(path_, access); });
    // SQLite knows of protections that the file's permissions do not show.
    condition.isWritable = sqlite3_db_readonly(database_->getHandle(), "main") == 0;
    refuseUnfit(condition, access, path_);
}

Connection::~Connection() = default;
Connection::Connection(Connection&&) noexcept = default;
Connection& Connection::operator=(Connection&&) noexcept = default;
