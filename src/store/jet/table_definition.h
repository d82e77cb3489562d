// The definition of a table: what its rows are made of, and where they lie.
#pragma once

#include <QString>
#include <cstdint>
#include <vector>

#include "store/jet/jet_pages.h"
#include "store/jet/row_page.h"

enum class JetType : std::uint8_t {
    Boolean = 1,
    Byte = 2,
    Int16 = 3,
    Int32 = 4,
    Currency = 5,
    Single = 6,
    Double = 7,
    Date = 8,
    Binary = 9,
    Text = 10,
    Ole = 11,
    Memo = 12,
    Guid = 15,
    Numeric = 16,
};

struct JetColumn {
    QString name;
    JetType type;
    int number;         // of its bit in the null mask
    bool isFixed;       // else of a length that each row tells
    int variableIndex;  // among those of such a length
    int fixedOffset;    // in bytes, behind a row's count of columns
    int fixedSize;
    bool isAuto;  // each row gets a number that no other has had
};

struct TableDefinition {
    std::uint32_t page;
    std::uint32_t rows;
    std::int32_t lastNumber;  // that a row got by itself; 0 where the file tells of none
    int mostColumns;          // that a row can have
    bool hasVariableColumns;
    JetPointer usageMap;
    std::vector<JetColumn> columns;  // in the order in which they were made
};

// Reads the definition that begins on the page. Raises JetDamage if it makes no sense.
TableDefinition readTableDefinition(JetPages& pages, std::uint32_t page);
