// The walk through the rows, and the meaning of their fields.
#include "store/jet/jet_rows.h"

#include <utility>

#include "store/jet/jet_text.h"
#include "store/jet/long_value.h"
#include "store/jet/row_fields.h"

namespace {

RowPage pageOfTable(JetPages& pages, std::uint32_t number, const TableDefinition& table) {
    RowPage page(pages, number);
    if (page.owner() != table.page)
        throw JetDamage(
            QStringLiteral("page %1 is not of the table that it should be").arg(number));
    return page;
}

// A date is a day from 1 January 100 to 31 December 9999, with its time.
double dateOf(double serial) {
    constexpr double kFirst = -657434;
    constexpr double kBehindLast = 2958466;
    if (!(serial > kFirst - 1 && serial < kBehindLast))
        throw JetDamage(QStringLiteral("a date in it is none"));
    return serial;
}

Value numberOf(JetType type, ByteView field) {
    constexpr double kCurrencyUnits = 10'000;
    switch (type) {
        case JetType::Byte:
            return Long{field.numberAt<std::uint8_t>(0)};
        case JetType::Int16:
            return Long{field.numberAt<std::int16_t>(0)};
        case JetType::Int32:
            return Long{field.numberAt<std::int32_t>(0)};
        case JetType::Currency:
            return static_cast<double>(field.numberAt<std::int64_t>(0)) / kCurrencyUnits;
        case JetType::Single:
            return double{field.numberAt<float>(0)};
        case JetType::Double:
            return field.numberAt<double>(0);
        default:
            return dateOf(field.numberAt<double>(0));
    }
}

}  // namespace

JetRows::JetRows(std::shared_ptr<JetPages> pages, TableDefinition table,
                 std::vector<JetColumn> columns)
    : pages_(std::move(pages)),
      table_(std::move(table)),
      columns_(std::move(columns)),
      map_(*pages_, table_.usageMap),
      allowance_(pages_->bytes()),
      values_(columns_.size()) {}

bool JetRows::next() {
    return raisingJetErrors(pages_->path(), [this] {
        if (!goToNextRow()) {
            if (rowsRead_ != table_.rows)
                throw JetDamage(QStringLiteral("a table has %1 rows in place of %2")
                                    .arg(rowsRead_)
                                    .arg(table_.rows));
            return false;
        }
        ++rowsRead_;
        readRow();
        return true;
    });
}

bool JetRows::goToNextRow() {
    for (++row_;; ++row_) {
        while (row_ >= page_.rows()) {
            if (!goToNextPage())
                return false;
        }
        if (!page_.isHidden(row_))
            return true;
    }
}

bool JetRows::goToNextPage() {
    const std::optional<std::uint32_t> number = map_.firstFrom(*pages_, nextPage_);
    if (!number)
        return false;
    page_ = pageOfTable(*pages_, *number, table_);
    nextPage_ = *number + 1;
    row_ = 0;
    return true;
}

void JetRows::readRow() {
    const ByteView row = page_.rowAt(row_);
    if (page_.hasMoved(row_))
        readMovedRow(row);
    else
        readValues(row);
}

// A row that has moved more than once may leave a trail.
void JetRows::readMovedRow(ByteView pointer) {
    constexpr int kMostMoves = 16;
    RowPage page;
    for (int moves = 0; moves < kMostMoves; ++moves) {
        const JetPointer place(pointer.numberAt<std::uint32_t>(0));
        page = pageOfTable(*pages_, place.page, table_);
        pointer = page.rowAt(place.row);
        if (!page.hasMoved(place.row)) {
            readValues(pointer);
            return;
        }
    }
    throw JetDamage(QStringLiteral("a row has moved in a circle"));
}

void JetRows::readValues(ByteView row) {
    allowance_.take(row.length());
    const RowFields fields(row, table_, pages_->format());
    for (std::size_t i = 0; i < columns_.size(); ++i)
        values_[i] = valueOf(columns_[i], fields);
}

Value JetRows::valueOf(const JetColumn& column, const RowFields& fields) {
    const bool isSet = fields.isSet(column);
    if (column.type == JetType::Boolean)
        return Value(isSet);
    if (!isSet)
        return {};
    const ByteView field = fields.bytesOf(column);
    if (column.type == JetType::Text || column.type == JetType::Memo)
        return textOf(column, field);
    return numberOf(column.type, field);
}

QString JetRows::textOf(const JetColumn& column, ByteView field) {
    if (column.type == JetType::Text)
        return jetText(field, pages_->format());
    const QByteArray bytes = longValue(field, *pages_, allowance_);
    return jetText(ByteView(bytes), pages_->format());
}

bool isReadable(JetType type) {
    switch (type) {
        case JetType::Boolean:
        case JetType::Byte:
        case JetType::Int16:
        case JetType::Int32:
        case JetType::Currency:
        case JetType::Single:
        case JetType::Double:
        case JetType::Date:
        case JetType::Text:
        case JetType::Memo:
            return true;
        default:
            return false;
    }
}
