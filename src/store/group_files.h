// The group files: one for each saved group of people, named by the user.
#pragma once

#include <QString>
#include <vector>

#include "store/person_records.h"

// The pattern that lists them, "*.ofg".
QString groupPattern();

// The name of the file for a group that the user calls so; blanks at the ends are no part of it.
QString groupFileName(const QString& groupName);

// Saves a group, in the place of one that is there. Raises what writeSmallFile raises; the group
// that was there is whole then.
void writeGroup(const QString& fileName, const std::vector<PersonRecord>& members);

// Reads the members of a group; nobody compares them with the database. Raises what readSmallFile
// and readRecords raise.
std::vector<PersonRecord> readGroup(const QString& fileName);

// Deletes a group's file. Raises what deleteSmallFile raises.
void deleteGroupFile(const QString& fileName);
