// The favourite files: one for each favourite person, named by the display text.
#pragma once

#include <QString>

#include "store/person_records.h"

// The pattern that lists them, "*.ofp".
QString favouritePattern();

// What menus call the favourite of a file: the file's name without its extension, which is the last
// four characters.
QString favouriteIn(const QString& fileName);

// Makes a person a favourite. One with the same display text is replaced.
// Raises what writeSmallFile raises.
void writeFavourite(const PersonRecord& person);

// Reads the favourite of this name. Raises what readSmallFile and readFirstRecord raise.
PersonRecord readFavourite(const QString& name);

// Deletes a favourite's file. Raises what deleteSmallFile raises.
void deleteFavouriteFile(const QString& fileName);
