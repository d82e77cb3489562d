// Makes Jet files for tests: what a reader of such files is to find in them, byte for byte.
#pragma once

#include <QByteArray>
#include <QString>
#include <cstdint>
#include <vector>

#include "store/jet/table_definition.h"
#include "store/value.h"

struct BuiltColumn {
    QString name;
    JetType type;
    int length = 0;  // of a text, in characters
};

struct BuiltRow {
    enum Fate {
        Stays,
        Deleted,
        Moved,       // what is left is the pointer to another place
        MovedTwice,  // and there is another pointer
        MovedAndDeleted,
    };

    std::vector<Value> values;  // fewer than there are columns for a row that is older than some
    Fate fate = Stays;
};

struct BuiltTable {
    QString name;
    std::vector<BuiltColumn> columns;
    std::vector<BuiltRow> rows;
    bool hasLargeMap = false;  // its usage map lies on a page of its own
    bool hasCompressedTexts = false;
    int memoPiece = 0;   // the bytes of a memo's piece; 0 for as many as a page has room for
    int lastNumber = 0;  // if any, the first column numbers the rows
    int indexes = 0;     // their definitions stand before those of the columns
};

// Where the parts of a table lie.
struct BuiltPlaces {
    std::uint32_t definition = 0;  // pages
    std::uint32_t map = 0;         // its only row is the usage map
    std::uint32_t largeMap = 0;
    std::vector<std::uint32_t> rows;
    std::vector<std::uint32_t> longValues;
};

struct BuiltJet {
    QByteArray bytes;
    int pageSize = 0;
    BuiltPlaces catalog;
    std::vector<BuiltPlaces> tables;

    // A place in the file, counted from the beginning of a page.
    qsizetype place(std::uint32_t page, qsizetype inPage = 0) const {
        return qsizetype{page} * pageSize + inPage;
    }
};

// A file of Jet 3 or 4 with these tables. Its catalog also has tables that are not the user's.
BuiltJet builtJet(int version, const std::vector<BuiltTable>& tables);

// Puts a number into the header, in the code that all headers are encoded with.
void putInHeader(QByteArray& bytes, int place, std::uint32_t number);
