// The rows of a table of a Jet file, one after another.
#pragma once

#include <QString>
#include <memory>
#include <vector>

#include "store/jet/jet_pages.h"
#include "store/jet/read_allowance.h"
#include "store/jet/row_page.h"
#include "store/jet/table_definition.h"
#include "store/jet/usage_map.h"
#include "store/value.h"

class RowFields;

// A cursor that goes through the rows in the order of their places in the file, once and forwards.
// Deleted rows are left out; a row that has moved is read where it lies now, and counts where it
// was first. It takes the memory of one row, however many there are.
//
// A file that contradicts itself raises 321 where that shows, at the end at the latest: then the
// number of rows must be what the table says. So rows that have been read prove to be all of them
// only when next() has said that there are no more.
class JetRows {
  public:
    // The columns are what values() is to hold, and in which order. All of them can be read.
    JetRows(std::shared_ptr<JetPages> pages, TableDefinition table, std::vector<JetColumn> columns);

    // Goes to the next row, first to the first; false behind the last.
    bool next();

    // The current row. A date is the number of its days, a Boolean -1 or 0.
    const std::vector<Value>& values() const { return values_; }

  private:
    bool goToNextRow();
    bool goToNextPage();
    void readRow();
    void readMovedRow(ByteView pointer);
    void readValues(ByteView row);
    Value valueOf(const JetColumn& column, const RowFields& fields);
    QString textOf(const JetColumn& column, ByteView field);

    std::shared_ptr<JetPages> pages_;
    TableDefinition table_;
    std::vector<JetColumn> columns_;
    UsageMap map_;
    ReadAllowance allowance_;
    std::uint32_t nextPage_ = 0;
    RowPage page_;
    int row_ = -1;
    std::uint32_t rowsRead_ = 0;
    std::vector<Value> values_;
};

// Whether values of the type can be read: numbers, texts and dates.
bool isReadable(JetType type);
