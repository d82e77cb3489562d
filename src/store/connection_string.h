// What a connection string says: where the database file is.
#pragma once

#include <QString>

// The value of "Data Source=", which reaches to the last semicolon: a folder's name may contain
// others. Raises 52 (Bad file name or number) where there is none.
QString dataSource(const QString& connectionString);

// The absolute path of the file that a data source names. A backslash separates folders on every
// system, unless the folder exists by its name as it stands. A file whose name differs in case
// alone is the one that is meant where none has the very name.
QString pathOfDataSource(const QString& source);
