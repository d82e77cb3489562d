// The opening of connections.
#include "store/connection.h"

#include <SQLiteCpp/Database.h>
#include <sqlite3.h>

#include "store/connection_string.h"
#include "store/database_set_up.h"
#include "store/file_condition.h"
#include "store/jet/jet_file.h"
#include "store/jet_database.h"
#include "store/sqlite_errors.h"

namespace {

constexpr int kBusyTimeoutMilliseconds = 2000;

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
    if (isJetFile(path))
        return readJetDatabase(path);
    return openStore(path, access);
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
    raisingStoreErrors(path_, [&] {
        database_ = openDatabase(path_, access);
        setUpDatabase(*database_);
    });
    // SQLite knows of protections that the file's permissions do not show.
    condition.isWritable = sqlite3_db_readonly(database_->getHandle(), "main") == 0;
    refuseUnfit(condition, access, path_);
}

Connection::~Connection() = default;
Connection::Connection(Connection&&) noexcept = default;
Connection& Connection::operator=(Connection&&) noexcept = default;
