// The writing of what the wizard adds to the person database.
#pragma once

#include "cycles/integers.h"
#include "records/new_person.h"
#include "store/connection.h"

// Each takes a connection to the person database and closes it. On an error nothing is written.
void writePerson(Connection people, const NewPerson& person, Long catId);
void writeCategory(Connection people, const QString& category);
