// A row taken apart into the bytes of its fields.
#pragma once

#include <array>
#include <cstdint>

#include "store/jet/byte_view.h"
#include "store/jet/jet_format.h"
#include "store/jet/table_definition.h"

// A row is a count of columns, the fields of fixed size, those of variable length, and from its end
// backwards a null mask, a count of the latter, and their offsets. Bounds that make no sense raise
// JetDamage. The bytes must live as long as this.
class RowFields {
  public:
    RowFields(ByteView row, const TableDefinition& table, const JetFormat& format);

    // Whether the column's bit in the mask is set: it is no Null; of a Boolean, it is true. A
    // column that was made after the row has none.
    bool isSet(const JetColumn& column) const;

    // The bytes of a field that is no Null.
    ByteView bytesOf(const JetColumn& column) const;

  private:
    static constexpr int kMostFields = 255;

    void readOffsets(qsizetype place, const JetFormat& format);
    void addJumps(qsizetype end, qsizetype jumps);

    ByteView row_;
    int countSize_;
    int columns_;
    qsizetype mask_;  // where it begins
    int variableFields_ = 0;
    qsizetype variableBegin_;                   // where the fields of fixed size end
    std::array<int, kMostFields + 1> offsets_;  // of those of variable length, and of their end
};
