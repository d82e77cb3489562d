// The layout of Jet files. It shares no line with the reader, so that no error is in both.
#include "support/jet_builder.h"

#include <QtEndian>
#include <algorithm>
#include <bit>
#include <utility>

#include "runtime/code_page.h"

namespace {

constexpr std::uint16_t kDeleted = 0x8000;
constexpr std::uint16_t kPointer = 0x4000;
constexpr qsizetype kHeaderCode = 0x18;  // where it begins
constexpr double kMade = 36526;          // the day on which all files are made

// What all headers are encoded with.
const QByteArray& headerCode() {
    static const QByteArray kCode = QByteArray::fromHex(
        "b56f03626108c255eba96772433f009c7a9f90ff809a31c579baed30bcdfcc9d"
        "63d9e4c37b42fb8abc4e86fbec375d449cfac65e28e613b68a6054947b36f572"
        "dfb177f41343cfafb1333461795b92b57c2a05f17c99011b98fd124f4a946c3e"
        "60265f95f8d089248567c61f2744d2eecf65edff07c746a178160cede92d62d4");
    return kCode;
}

template <class Number>
void put(QByteArray& bytes, qsizetype place, Number number) {
    qToLittleEndian(number, bytes.data() + place);
}

template <class Number>
void append(QByteArray& bytes, Number number) {
    bytes.resize(bytes.size() + qsizetype{sizeof number});
    put(bytes, bytes.size() - qsizetype{sizeof number}, number);
}

// A page as it is filled with rows from its end.
struct PageOfRows {
    QByteArray bytes;
    int rows = 0;
    qsizetype end = 0;
};

bool isVariable(const BuiltColumn& column) {
    return column.type == JetType::Text || column.type == JetType::Memo ||
           column.type == JetType::Ole;
}

int sizeOf(JetType type) {
    switch (type) {
        case JetType::Boolean:
            return 0;
        case JetType::Byte:
            return 1;
        case JetType::Int16:
            return 2;
        case JetType::Int32:
        case JetType::Single:
            return 4;
        default:
            return 8;
    }
}

QByteArray numberBytes(JetType type, const Value& value) {
    QByteArray bytes;
    switch (type) {
        case JetType::Boolean:
            break;
        case JetType::Byte:
            append(bytes, static_cast<std::uint8_t>(value.toLong()));
            break;
        case JetType::Int16:
            append(bytes, static_cast<std::int16_t>(value.toLong()));
            break;
        case JetType::Int32:
            append(bytes, value.toLong());
            break;
        case JetType::Single:
            append(bytes, std::bit_cast<std::uint32_t>(static_cast<float>(value.toDouble())));
            break;
        case JetType::Currency:
            append(bytes, static_cast<std::int64_t>(value.toDouble() * 10'000));
            break;
        default:
            append(bytes, std::bit_cast<std::uint64_t>(value.toDouble()));
    }
    return bytes;
}

// One byte for a character where that is enough; a zero changes from one to two and back.
QByteArray compressed(const QString& text) {
    QByteArray bytes("\xFF\xFE");
    bool isWide = false;
    for (const QChar character : text) {
        const bool needsTwo = character.unicode() > 0xFF || character.isNull();
        if (needsTwo != isWide)
            bytes += '\0';
        isWide = needsTwo;
        if (isWide)
            append(bytes, character.unicode());
        else
            bytes += static_cast<char>(character.unicode());
    }
    return bytes;
}

// A zero within a character would be taken for a change.
bool canBeCompressed(const QString& text) {
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar character) {
        return (character.unicode() & 0xFF) != 0;
    });
}

QByteArray narrow(const QString& text) {
    QByteArray bytes;
    for (const QChar character : text)
        bytes += static_cast<char>(byteOfCharacter(character).value());
    return bytes;
}

QByteArray wide(const QString& text) {
    QByteArray bytes;
    for (const QChar character : text)
        append(bytes, character.unicode());
    return bytes;
}

class Builder {
  public:
    explicit Builder(int version) : is4_(version == 4) {
        file_.pageSize = is4_ ? 4096 : 2048;
        newPage(header());
        PageOfRows allPages = pageOfRows(0);
        addTo(allPages, QByteArray(is4_ ? 69 : 133, '\0'), 0);
        newPage(allPages.bytes);
    }

    BuiltJet built(const std::vector<BuiltTable>& tables) {
        file_.catalog.definition = newPage({});
        for (const BuiltTable& table : tables) {
            BuiltPlaces places;
            places.definition = newPage({});
            fill(table, places);
            file_.tables.push_back(places);
        }
        fill(catalog(tables), file_.catalog);
        for (const QByteArray& page : pages_)
            file_.bytes += page.leftJustified(file_.pageSize, '\0');
        return file_;
    }

  private:
    QByteArray header() const {
        QByteArray bytes(file_.pageSize, '\0');
        bytes.replace(0, 20, QByteArray("\0\1\0\0Standard Jet DB\0", 20));
        bytes[0x14] = is4_ ? 1 : 0;
        const QByteArray code = headerCode().first(is4_ ? 128 : 126);
        bytes.replace(kHeaderCode, code.size(), code);
        putInHeader(bytes, 0x3C, 1252);
        if (is4_) {
            const auto made = std::bit_cast<std::uint64_t>(kMade);
            putInHeader(bytes, 0x72, static_cast<std::uint32_t>(made));
            putInHeader(bytes, 0x76, static_cast<std::uint32_t>(made >> 32));
            for (int place = 0x42; place < 0x42 + 40; place += 4)
                putInHeader(bytes, place, static_cast<std::uint32_t>(kMade));
        }
        return bytes;
    }

    std::uint32_t newPage(const QByteArray& bytes) {
        pages_.push_back(bytes);
        return static_cast<std::uint32_t>(pages_.size() - 1);
    }

    PageOfRows pageOfRows(std::uint32_t owner) const {
        PageOfRows page{QByteArray(file_.pageSize, '\0'), 0, file_.pageSize};
        page.bytes[0] = 1;
        page.bytes[1] = 1;
        put(page.bytes, 4, owner);
        return page;
    }

    int slots() const { return is4_ ? 14 : 10; }

    bool hasRoom(const PageOfRows& page, qsizetype size) const {
        return page.rows < 255 && page.end - size >= slots() + 2 * (page.rows + 1);
    }

    // The number of the row.
    int addTo(PageOfRows& page, const QByteArray& row, std::uint16_t flags) const {
        page.end -= row.size();
        page.bytes.replace(page.end, row.size(), row);
        put(page.bytes, slots() + 2 * page.rows, static_cast<std::uint16_t>(page.end | flags));
        ++page.rows;
        put(page.bytes, is4_ ? 12 : 8, static_cast<std::uint16_t>(page.rows));
        return page.rows - 1;
    }

    // Adds a row to the last of these pages, or to another; the pointer to it.
    std::uint32_t addTo(std::vector<std::uint32_t>& numbers, PageOfRows& last, std::uint32_t owner,
                        const QByteArray& row, std::uint16_t flags) {
        if (numbers.empty() || !hasRoom(last, row.size())) {
            last = pageOfRows(owner);
            numbers.push_back(newPage({}));
        }
        const int number = addTo(last, row, flags);
        pages_[numbers.back()] = last.bytes;
        return numbers.back() << 8 | static_cast<std::uint32_t>(number);
    }

    QByteArray textBytes(const QString& text, const BuiltTable& table) const {
        if (!is4_)
            return narrow(text);
        return table.hasCompressedTexts && canBeCompressed(text) ? compressed(text) : wide(text);
    }

    // The field of a memo, which leads to where the memo is.
    QByteArray memoField(const QByteArray& memo, const BuiltTable& table, BuiltPlaces& places) {
        constexpr qsizetype kInField = 64;
        const qsizetype onPage = file_.pageSize - slots() - 2;
        const qsizetype piece = table.memoPiece != 0 ? table.memoPiece : onPage - 4;
        std::uint32_t pointer = 0;
        std::uint32_t flags = 0;
        if (memo.size() <= kInField) {
            flags = 0x80000000;
        } else if (memo.size() <= onPage && table.memoPiece == 0) {
            flags = 0x40000000;
            pointer = addLong(memo, places);
        } else {
            for (qsizetype begin = (memo.size() - 1) / piece * piece; begin >= 0; begin -= piece) {
                QByteArray row;
                append(row, pointer);
                pointer = addLong(row + memo.mid(begin, piece), places);
            }
        }
        QByteArray field;
        append(field, static_cast<std::uint32_t>(memo.size()) | flags);
        append(field, pointer);
        append(field, std::uint32_t{0});
        return flags == 0x80000000 ? field + memo : field;
    }

    std::uint32_t addLong(const QByteArray& row, BuiltPlaces& places) {
        return addTo(places.longValues, longs_, 0x4C41564C, row, 0);
    }

    void appendCount(QByteArray& bytes, qsizetype number) const {
        if (is4_)
            append(bytes, static_cast<std::uint16_t>(number));
        else
            append(bytes, static_cast<std::uint8_t>(number));
    }

    QByteArray rowBytes(const std::vector<Value>& values, const BuiltTable& table,
                        BuiltPlaces& places) {
        QByteArray row;
        QByteArray mask((static_cast<qsizetype>(values.size()) + 7) / 8, '\0');
        std::vector<QByteArray> fields;
        appendCount(row, static_cast<qsizetype>(values.size()));
        for (std::size_t i = 0; i < values.size(); ++i) {
            const BuiltColumn& column = table.columns[i];
            const bool isBoolean = column.type == JetType::Boolean;
            if (isBoolean ? values[i].toBoolean() : !values[i].isNull())
                mask[static_cast<qsizetype>(i) / 8] |= static_cast<char>(1 << i % 8);
            if (isVariable(column)) {
                const QByteArray text =
                    values[i].isNull() ? QByteArray() : textBytes(values[i].toText(), table);
                const bool isMemo = column.type == JetType::Memo && !values[i].isNull();
                fields.push_back(isMemo ? memoField(text, table, places) : text);
            } else {
                row += values[i].isNull() ? QByteArray(sizeOf(column.type), '\0')
                                          : numberBytes(column.type, values[i]);
            }
        }
        appendFields(row, fields, mask.size(), table);
        return row + mask;
    }

    void appendFields(QByteArray& row, const std::vector<QByteArray>& fields, qsizetype maskSize,
                      const BuiltTable& table) const {
        if (std::none_of(table.columns.begin(), table.columns.end(), isVariable))
            return;
        std::vector<qsizetype> offsets;
        for (const QByteArray& field : fields) {
            offsets.push_back(row.size());
            row += field;
        }
        offsets.push_back(row.size());
        const qsizetype size =
            row.size() + static_cast<qsizetype>(offsets.size()) * (is4_ ? 2 : 1) + 1 + maskSize;
        for (auto offset = offsets.rbegin(); offset != offsets.rend(); ++offset)
            appendCount(row, *offset & (is4_ ? 0xFFFF : 0xFF));
        if (!is4_)
            appendJumps(row, offsets, size);
        appendCount(row, static_cast<qsizetype>(fields.size()));
    }

    // The numbers of the fields that begin another 256 bytes on, the first of them last; 0 where
    // none does.
    static void appendJumps(QByteArray& row, const std::vector<qsizetype>& offsets,
                            qsizetype size) {
        qsizetype jumps = 0;
        while ((size + jumps - 1) / 256 > jumps)
            ++jumps;
        for (; jumps > 0; --jumps) {
            const auto field =
                std::find_if(offsets.begin(), offsets.end(),
                             [jumps](qsizetype offset) { return offset >= 256 * jumps; });
            append(row,
                   static_cast<std::uint8_t>(field == offsets.end() ? 0 : field - offsets.begin()));
        }
    }

    // Lays the rows out, then those that have moved, and then what tells of them.
    void fill(const BuiltTable& table, BuiltPlaces& places) {
        PageOfRows last;
        std::vector<std::pair<std::uint32_t, const BuiltRow*>> moved;
        std::uint32_t count = 0;
        const auto add = [&](const QByteArray& row, std::uint16_t flags) {
            return addTo(places.rows, last, places.definition, row, flags);
        };
        for (const BuiltRow& row : table.rows) {
            const bool hasMoved = row.fate > BuiltRow::Deleted;
            const bool isDeleted =
                row.fate == BuiltRow::Deleted || row.fate == BuiltRow::MovedAndDeleted;
            const auto flags =
                static_cast<std::uint16_t>((hasMoved ? kPointer : 0) | (isDeleted ? kDeleted : 0));
            const std::uint32_t pointer =
                add(hasMoved ? QByteArray(4, '\0') : rowBytes(row.values, table, places), flags);
            if (hasMoved)
                moved.emplace_back(pointer, &row);
            count += isDeleted ? 0 : 1;
        }
        for (auto [pointer, row] : moved) {
            if (row->fate == BuiltRow::MovedTwice) {
                const std::uint32_t next = add(QByteArray(4, '\0'), kPointer | kDeleted);
                lead(pointer, next);
                last.bytes = pages_[places.rows.back()];
                pointer = next;
            }
            lead(pointer, add(rowBytes(row->values, table, places), kDeleted));
            last.bytes = pages_[places.rows.back()];
        }
        places.map = newPage({});
        addMap(table, places);
        addDefinition(table, places, count);
    }

    // Writes where the row of a pointer has gone.
    void lead(std::uint32_t from, std::uint32_t to) {
        QByteArray& page = pages_[from >> 8];
        const auto slot =
            qFromLittleEndian<std::uint16_t>(page.constData() + slots() + 2 * (from & 0xFF));
        put(page, slot & 0x1FFF, to);
    }

    void addMap(const BuiltTable& table, BuiltPlaces& places) {
        QByteArray map(is4_ ? 69 : 133, '\0');
        if (!table.hasLargeMap) {
            // The bits count from a base.
            const std::uint32_t base = places.rows.empty() ? 0 : places.rows.front() & ~7U;
            put(map, 1, base);
            setBits(map, 5, base, places.rows);
        } else {
            map[0] = 1;
            QByteArray bits(file_.pageSize, '\0');
            bits[0] = 5;
            bits[1] = 1;
            // Tests have fewer pages than one such page tells of.
            setBits(bits, 4, 0, places.rows);
            places.largeMap = newPage(bits);
            put(map, 1, places.largeMap);
        }
        PageOfRows page = pageOfRows(0);
        addTo(page, map, 0);
        pages_[places.map] = page.bytes;
    }

    static void setBits(QByteArray& map, qsizetype begin, std::uint32_t base,
                        const std::vector<std::uint32_t>& pages) {
        for (const std::uint32_t page : pages) {
            const qsizetype bit = page - base;
            map[begin + bit / 8] |= static_cast<char>(1 << bit % 8);
        }
    }

    void addDefinition(const BuiltTable& table, const BuiltPlaces& places, std::uint32_t count) {
        const auto variables =
            std::count_if(table.columns.begin(), table.columns.end(), isVariable);
        const auto columns = static_cast<std::uint16_t>(table.columns.size());
        QByteArray bytes((is4_ ? 63 : 43) + table.indexes * (is4_ ? 12 : 8), '\0');
        bytes[0] = 2;
        bytes[1] = 1;
        put(bytes, is4_ ? 16 : 12, count);
        put(bytes, is4_ ? 20 : 16, table.lastNumber);
        bytes[is4_ ? 40 : 20] = 0x4E;
        put(bytes, is4_ ? 41 : 21, columns);
        put(bytes, is4_ ? 43 : 23, static_cast<std::uint16_t>(variables));
        put(bytes, is4_ ? 45 : 25, columns);
        put(bytes, is4_ ? 51 : 31, table.indexes);
        put(bytes, is4_ ? 55 : 35, places.map << 8);
        put(bytes, is4_ ? 59 : 39,
            places.map << 8);  // the pages with room, which another map tells
        appendColumns(bytes, table);
        put(bytes, 8, static_cast<std::uint32_t>(bytes.size()));
        layOut(bytes, places.definition);
    }

    void appendColumns(QByteArray& bytes, const BuiltTable& table) const {
        std::uint16_t number = 0;
        std::uint16_t variable = 0;
        std::uint16_t offset = 0;
        for (const BuiltColumn& column : table.columns) {
            QByteArray entry(is4_ ? 25 : 18, '\0');
            const int size = isVariable(column) ? column.length * (is4_ ? 2 : 1)
                                                : std::max(1, sizeOf(column.type));
            entry[0] = static_cast<char>(column.type);
            put(entry, is4_ ? 5 : 1, number);
            put(entry, is4_ ? 7 : 3, variable);
            put(entry, is4_ ? 9 : 5, number);
            const bool isAuto = table.lastNumber != 0 && number == 0;
            entry[is4_ ? 15 : 13] = isVariable(column) ? 2 : isAuto ? 7 : 3;
            put(entry, is4_ ? 21 : 14, offset);
            put(entry, is4_ ? 23 : 16, static_cast<std::uint16_t>(size));
            bytes += entry;
            ++number;
            variable = static_cast<std::uint16_t>(variable + (isVariable(column) ? 1 : 0));
            offset =
                static_cast<std::uint16_t>(offset + (isVariable(column) ? 0 : sizeOf(column.type)));
        }
        for (const BuiltColumn& column : table.columns) {
            const QByteArray name = is4_ ? wide(column.name) : narrow(column.name);
            appendCount(bytes, name.size());
            bytes += name;
        }
    }

    // Puts a definition on its page, and what the page has no room for on others.
    void layOut(QByteArray bytes, std::uint32_t page) {
        constexpr qsizetype kPageHeader = 8;
        while (true) {
            QByteArray rest = bytes.mid(file_.pageSize);
            bytes.truncate(file_.pageSize);
            const std::uint32_t next = rest.isEmpty() ? 0 : newPage({});
            put(bytes, 4, next);
            pages_[page] = bytes;
            if (next == 0)
                return;
            bytes = QByteArray(kPageHeader, '\0') + rest;
            bytes[0] = 2;
            bytes[1] = 1;
            page = next;
        }
    }

    // Beside the user's tables there are this one, a hidden one and one of another file.
    BuiltTable catalog(const std::vector<BuiltTable>& tables) const {
        const auto entry = [](std::uint32_t id, const QString& name, Long type,
                              std::uint32_t flags) {
            return BuiltRow{{static_cast<Long>(id), 0, name, type, 36526.0, 36526.0,
                             static_cast<Long>(flags), Value()}};
        };
        BuiltTable catalog{
            QStringLiteral("MSysObjects"),
            {{QStringLiteral("Id"), JetType::Int32},
             {QStringLiteral("ParentId"), JetType::Int32},
             {QStringLiteral("Name"), JetType::Text, 255},
             {QStringLiteral("Type"), JetType::Int16},
             {QStringLiteral("DateCreate"), JetType::Date},
             {QStringLiteral("DateUpdate"), JetType::Date},
             {QStringLiteral("Flags"), JetType::Int32},
             {QStringLiteral("LvProp"), JetType::Ole}},
            {entry(2, QStringLiteral("MSysObjects"), 1, 0x80000000),
             entry(2, QStringLiteral("Hidden"), 1, 2), entry(2, QStringLiteral("Linked"), 6, 0)}};
        constexpr std::uint32_t kMark = 0x0F000000;  // no part of the page's number
        for (std::size_t i = 0; i < tables.size(); ++i)
            catalog.rows.push_back(entry(file_.tables[i].definition | kMark, tables[i].name, 1, 0));
        return catalog;
    }

    bool is4_;
    BuiltJet file_;
    std::vector<QByteArray> pages_;
    PageOfRows longs_;
};

}  // namespace

BuiltJet builtJet(int version, const std::vector<BuiltTable>& tables) {
    return Builder(version).built(tables);
}

void putInHeader(QByteArray& bytes, int place, std::uint32_t number) {
    for (int i = 0; i < 4; ++i)
        bytes[place + i] =
            static_cast<char>(headerCode()[place - static_cast<int>(kHeaderCode) + i] ^
                              static_cast<char>(number >> 8 * i));
}
