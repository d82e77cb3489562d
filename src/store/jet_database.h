// Jet files, for those who know record sets alone.
#pragma once

#include <SQLiteCpp/Database.h>

#include <QString>
#include <memory>

// The tables of a Jet file, read into a database in memory that cannot be changed. Their rows come
// in the order of the file; fields that are no numbers, texts or dates are left out. Raises what
// JetFile raises.
std::unique_ptr<SQLite::Database> readJetDatabase(const QString& path);
