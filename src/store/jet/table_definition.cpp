// The reading of definitions.
#include "store/jet/table_definition.h"

#include <algorithm>

#include "store/jet/jet_text.h"

namespace {

constexpr int kMostColumns = 255;
constexpr int kMostPages = 64;  // 255 columns and 32 indexes with the longest of names need fewer
constexpr int kFixed = 1;
constexpr int kAuto = 4;

// The whole definition, which goes on from page to page.
QByteArray definitionBytes(JetPages& pages, std::uint32_t first) {
    constexpr qsizetype kNextPage = 4;
    constexpr qsizetype kPageHeader = 8;
    QByteArray bytes = pages.page(first, JetPageType::Definition);
    auto next = ByteView(bytes).numberAt<std::uint32_t>(kNextPage);
    for (int count = 1; next != 0; ++count) {
        if (count == kMostPages)
            throw JetDamage(QStringLiteral("the definition of a table has no end"));
        const QByteArray page = pages.page(next, JetPageType::Definition);
        bytes += ByteView(page).from(kPageHeader).copy();
        next = ByteView(page).numberAt<std::uint32_t>(kNextPage);
    }
    return bytes;
}

// The bytes of a value of fixed size.
int fixedSizeOf(JetType type, int length) {
    switch (type) {
        case JetType::Boolean:  // it lies in the null mask
            return 0;
        case JetType::Byte:
            return 1;
        case JetType::Int16:
            return 2;
        case JetType::Int32:
        case JetType::Single:
            return 4;
        case JetType::Currency:
        case JetType::Double:
        case JetType::Date:
            return 8;
        default:
            return length;
    }
}

JetColumn columnOf(ByteView bytes, const JetFormat& format) {
    const auto type = static_cast<JetType>(bytes.numberAt<std::uint8_t>(0));
    const auto flags = bytes.numberAt<std::uint8_t>(format.columnFlags);
    return {.name = {},
            .type = type,
            .number = bytes.numberAt<std::uint16_t>(format.columnNumber),
            .isFixed = (flags & kFixed) != 0,
            .variableIndex = bytes.numberAt<std::uint16_t>(format.variableIndex),
            .fixedOffset = bytes.numberAt<std::uint16_t>(format.fixedOffset),
            .fixedSize = fixedSizeOf(type, bytes.numberAt<std::uint16_t>(format.columnLength)),
            .isAuto = (flags & kAuto) != 0};
}

std::vector<JetColumn> columnsOf(ByteView definition, const JetFormat& format) {
    const auto count = definition.numberAt<std::uint16_t>(format.columnCount);
    if (count > kMostColumns)
        throw JetDamage(QStringLiteral("a table has %1 columns").arg(count));
    qsizetype place = format.indexes + qsizetype{format.indexSize} *
                                           definition.numberAt<std::uint32_t>(format.indexCount);
    std::vector<JetColumn> columns;
    for (int i = 0; i < count; ++i, place += format.columnSize)
        columns.push_back(columnOf(definition.part(place, format.columnSize), format));
    for (JetColumn& column : columns) {
        const int length = definition.numberAt(place, format.countSize);
        place += format.countSize;
        column.name = jetName(definition.part(place, length), format);
        place += length;
    }
    return columns;
}

// What the definition says of a table that numbers no rows means nothing.
std::int32_t lastNumberOf(ByteView definition, const std::vector<JetColumn>& columns,
                          const JetFormat& format) {
    const bool numbersRows = std::any_of(columns.begin(), columns.end(),
                                         [](const JetColumn& column) { return column.isAuto; });
    return numbersRows ? definition.numberAt<std::int32_t>(format.lastNumber) : 0;
}

// Whether two columns claim the same bit or bytes of a row.
bool contradict(const JetColumn& one, const JetColumn& other) {
    if (one.number == other.number)
        return true;
    if (one.isFixed != other.isFixed)
        return false;
    if (!one.isFixed)
        return one.variableIndex == other.variableIndex;
    return std::max(one.fixedOffset, other.fixedOffset) <
           std::min(one.fixedOffset + one.fixedSize, other.fixedOffset + other.fixedSize);
}

void check(const TableDefinition& table) {
    for (auto column = table.columns.begin(); column != table.columns.end(); ++column) {
        const auto contradictsColumn = [&column](const JetColumn& other) {
            return contradict(*column, other);
        };
        if (column->number >= table.mostColumns ||
            std::any_of(table.columns.begin(), column, contradictsColumn))
            throw JetDamage(QStringLiteral("the columns of a table contradict each other"));
    }
}

}  // namespace

TableDefinition readTableDefinition(JetPages& pages, std::uint32_t page) {
    const JetFormat& format = pages.format();
    const QByteArray bytes = definitionBytes(pages, page);
    const ByteView view(bytes);
    TableDefinition table{
        .page = page,
        .rows = view.numberAt<std::uint32_t>(format.rowsInTable),
        .lastNumber = 0,
        .mostColumns = view.numberAt<std::uint16_t>(format.mostColumns),
        .hasVariableColumns = view.numberAt<std::uint16_t>(format.variableColumns) != 0,
        .usageMap = JetPointer(view.numberAt<std::uint32_t>(format.usageMap)),
        .columns = columnsOf(view, format)};
    check(table);
    table.lastNumber = lastNumberOf(view, table.columns, format);
    std::sort(table.columns.begin(), table.columns.end(),
              [](const auto& one, const auto& other) { return one.number < other.number; });
    return table;
}
