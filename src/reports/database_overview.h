// The database overview: everybody, in order of last name.
#pragma once

#include <QString>

class Recordset;

// The document of all people from the first on, in rich text. Raises 3021 for nobody, and 94 for a
// person without a birth date.
QString databaseOverview(Recordset& people);
