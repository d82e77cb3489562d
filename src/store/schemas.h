// The tables of the two databases, as data/ has them.
#pragma once

#include <QString>

// The SQL that makes them in an empty database.
QString peopleSchema();
QString interpretationSchema();
