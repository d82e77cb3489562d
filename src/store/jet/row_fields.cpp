// The taking apart of rows.
#include "store/jet/row_fields.h"

#include <algorithm>

namespace {

constexpr int kBits = 8;
constexpr int kJump = 256;

}  // namespace

RowFields::RowFields(ByteView row, const TableDefinition& table, const JetFormat& format)
    : row_(row), countSize_(format.countSize), columns_(row.numberAt(0, format.countSize)) {
    if (columns_ > table.mostColumns)
        throw JetDamage(QStringLiteral("a row has more columns than its table"));
    mask_ = row_.length() - (columns_ + kBits - 1) / kBits;
    variableBegin_ = mask_;
    if (table.hasVariableColumns)
        readOffsets(mask_ - countSize_, format);
    if (variableBegin_ < countSize_)
        throw JetDamage(QStringLiteral("a row is shorter than its fields"));
}

bool RowFields::isSet(const JetColumn& column) const {
    if (column.number >= columns_)
        return false;
    const int byte = row_.numberAt<std::uint8_t>(mask_ + column.number / kBits);
    return (byte >> (column.number % kBits) & 1) != 0;
}

ByteView RowFields::bytesOf(const JetColumn& column) const {
    if (column.isFixed) {
        const qsizetype begin = qsizetype{countSize_} + column.fixedOffset;
        if (begin + column.fixedSize > variableBegin_)
            throw JetDamage(QStringLiteral("a row is shorter than its fields"));
        return row_.part(begin, column.fixedSize);
    }
    if (column.variableIndex >= variableFields_)
        throw JetDamage(QStringLiteral("a row lacks a field"));
    const auto index = static_cast<std::size_t>(column.variableIndex);
    return row_.part(offsets_[index], offsets_[index + 1] - offsets_[index]);
}

// The count lies at the place, and the offsets before it, the first of them last. In Jet 3, where
// an offset is one byte, those of them that go round to 0 stand in between.
void RowFields::readOffsets(qsizetype place, const JetFormat& format) {
    variableFields_ = row_.numberAt(place, countSize_);
    if (variableFields_ > kMostFields)
        throw JetDamage(QStringLiteral("a row has %1 fields").arg(variableFields_));
    const qsizetype jumps = format.version == kJet3.version ? (row_.length() - 1) / kJump : 0;
    const qsizetype end = place - jumps;
    const qsizetype begin = end - qsizetype{countSize_} * (variableFields_ + 1);
    for (int i = 0; i <= variableFields_; ++i)
        offsets_[static_cast<std::size_t>(i)] =
            row_.numberAt(end - qsizetype{countSize_} * (i + 1), countSize_);
    addJumps(place, std::min(jumps, begin / kJump));
    for (int i = 0; i < variableFields_; ++i) {
        const auto index = static_cast<std::size_t>(i);
        if (offsets_[index] > offsets_[index + 1])
            throw JetDamage(QStringLiteral("the fields of a row overlap"));
    }
    if (offsets_[static_cast<std::size_t>(variableFields_)] > begin)
        throw JetDamage(QStringLiteral("the fields of a row overlap"));
    variableBegin_ = offsets_.front();
}

// Each jump is the number of the first field that lies another 256 bytes on.
void RowFields::addJumps(qsizetype end, qsizetype jumps) {
    qsizetype used = 0;
    for (int i = 0; i <= variableFields_; ++i) {
        while (used < jumps && row_.numberAt<std::uint8_t>(end - 1 - used) == i)
            ++used;
        offsets_[static_cast<std::size_t>(i)] += static_cast<int>(used) * kJump;
    }
}
