// The numbers and texts of run-time errors.
#include "runtime/errors.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace {

const std::map<int, std::string> kClassicalTexts{
    {5, "Invalid procedure call or argument"},
    {6, "Overflow"},
    {11, "Division by zero"},
    {13, "Type mismatch"},
    {52, "Bad file name or number"},
    {53, "File not found"},
    {57, "Device I/O error"},
    {61, "Disk full"},
    {62, "Input past end of file"},
    {70, "Permission denied"},
    {75, "Path/File access error"},
    {94, "Invalid use of Null"},
    {321, "Invalid file format"},
    {380, "Invalid property value"},
    {381, "Invalid property array index"},
    {440, "Automation error"},
    {482, "Printer error"},
    {3001,
     "Arguments are of the wrong type, are out of acceptable range, or are in conflict with one "
     "another."},
    {3021,
     "Either BOF or EOF is True, or the current record has been deleted. Requested operation "
     "requires a current record."},
    {3251,
     "Current Recordset does not support updating. This may be a limitation of the provider, or of "
     "the selected locktype."},
    {3265,
     "Item cannot be found in the collection corresponding to the requested name or ordinal."},
    {3704, "Operation is not allowed when the object is closed."},
    {3719, "Data value conflicts with the integrity constraints of the field"},
    {32755, "Cancel was selected."},
    {35600, "Index out of bounds"},
    {-2147217864,
     "Row cannot be located for updating. Some values may have been changed since it was last "
     "read."},
};

}  // namespace

TEST(RuntimeError, HasTheClassicalTextOfItsNumber) {
    for (const auto& [number, text] : kClassicalTexts) {
        const RuntimeError error{static_cast<ErrorNumber>(number)};
        EXPECT_EQ(error.number, number);
        EXPECT_EQ(error.description.toStdString(), text);
        EXPECT_STREQ(error.what(), text.c_str());
    }
}

TEST(RuntimeError, TakesADescriptionThatNamesTheCause) {
    const RuntimeError error(ErrorNumber::FileNotFound, QStringLiteral("File not found: Émile"));
    EXPECT_EQ(error.number, 53);
    EXPECT_EQ(error.description, QStringLiteral("File not found: Émile"));
    EXPECT_STREQ(error.what(), "File not found: \xC3\x89mile");
}

TEST(RuntimeError, KeepsItsTextWhenItIsCopied) {
    const auto copyOfALostOne = [] {
        const RuntimeError lost(ErrorNumber::DiskFull, QStringLiteral("Disk full: /tmp"));
        return RuntimeError(lost);
    };
    EXPECT_STREQ(copyOfALostOne().what(), "Disk full: /tmp");
}
