// The two databases beside the program, and how they are opened.
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
