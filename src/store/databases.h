// The two databases beside the program, those of Ondara 1.0, and how they are opened.
#pragma once

#include "store/connection.h"

// The connection string of the person database, put together anew from the program's directory.
QString personConnectionString();

// The same with the head in the spelling of the explorer.
QString explorerConnectionString();

// The same for the interpretation database, which is only read.
QString interpretationConnectionString();

Connection openPersonDatabase();
Connection openInterpretationDatabase();

// The database of Ondara 1.0 at a path, which is only read.
Connection openOldPeople(const QString& path);
