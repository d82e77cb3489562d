// Where things lie in the two formats of a Jet file that can be read.
#pragma once

// All places are counted in bytes from the beginning of what they are in.
struct JetFormat {
    int version;
    int pageSize;

    // In the header of the file.
    int encodedHeader;  // the bytes of it that are encoded
    int password;       // its bytes

    // In a page of rows.
    int rowCount;
    int slots;

    // In a table's definition.
    int rowsInTable;
    int lastNumber;
    int mostColumns;
    int variableColumns;
    int columnCount;
    int indexCount;
    int usageMap;
    int indexes;
    int indexSize;

    // In the definition of a column.
    int columnSize;
    int columnNumber;
    int variableIndex;
    int columnFlags;
    int fixedOffset;
    int columnLength;

    // In a row, and in front of a column's name: the bytes of a count, of an offset, of a length.
    int countSize;
};

inline constexpr JetFormat kJet3{.version = 3,
                                 .pageSize = 2048,
                                 .encodedHeader = 126,
                                 .password = 20,
                                 .rowCount = 8,
                                 .slots = 10,
                                 .rowsInTable = 12,
                                 .lastNumber = 16,
                                 .mostColumns = 21,
                                 .variableColumns = 23,
                                 .columnCount = 25,
                                 .indexCount = 31,
                                 .usageMap = 35,
                                 .indexes = 43,
                                 .indexSize = 8,
                                 .columnSize = 18,
                                 .columnNumber = 1,
                                 .variableIndex = 3,
                                 .columnFlags = 13,
                                 .fixedOffset = 14,
                                 .columnLength = 16,
                                 .countSize = 1};

inline constexpr JetFormat kJet4{.version = 4,
                                 .pageSize = 4096,
                                 .encodedHeader = 128,
                                 .password = 40,
                                 .rowCount = 12,
                                 .slots = 14,
                                 .rowsInTable = 16,
                                 .lastNumber = 20,
                                 .mostColumns = 41,
                                 .variableColumns = 43,
                                 .columnCount = 45,
                                 .indexCount = 51,
                                 .usageMap = 55,
                                 .indexes = 63,
                                 .indexSize = 12,
                                 .columnSize = 25,
                                 .columnNumber = 5,
                                 .variableIndex = 7,
                                 .columnFlags = 15,
                                 .fixedOffset = 21,
                                 .columnLength = 23,
                                 .countSize = 2};

// The first byte of a page.
enum class JetPageType : unsigned char { Rows = 1, Definition = 2, UsageMap = 5 };
