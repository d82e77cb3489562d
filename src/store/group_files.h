// The group files: one for each saved group of people, named by the user.
#pragma once

#include <QString>
#include <vector>

#include "store/person_records.h"
#include "store/small_file.h"

// The pattern that lists them, "*.ofg".
QString groupPattern();

// The name of the file for a group that the user calls so; blanks at the ends are no part of it.
QString groupFileName(const QString& groupName);

// Saves a group member by member, in the place of one that is there. Until it is closed, a group
// that was there is whole; it stays so where closing fails. The constructor raises what that of
// SmallFileWriter raises, Close what its write raises.
class GroupWriter {
  public:
    explicit GroupWriter(const QString& fileName);

    void Write(const PersonRecord& member) { members_.push_back(member); }
    void Close();

  private:
    SmallFileWriter file_;
    std::vector<PersonRecord> members_;
};

// Gives the members of a group away, one after the other; nobody compares them with the database.
// Raises what readSmallFile and readRecords raise.
void readGroup(const QString& fileName, const RecordTaker& take);

// Deletes a group's file. Raises what deleteSmallFile raises.
void deleteGroupFile(const QString& fileName);
