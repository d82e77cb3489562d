// The record set: rows, place and pending values brought together.
#include "store/recordset.h"

#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>

#include <algorithm>
#include <map>
#include <optional>

#include "runtime/errors.h"
#include "store/criterion.h"
#include "store/row_cursor.h"
#include "store/row_index.h"
#include "store/row_table.h"
#include "store/row_writer.h"
#include "store/sqlite_errors.h"

namespace {

// What a row waits to have written.
struct PendingRow {
    Changes changes;
    bool isNew = false;
    std::optional<RowId> before;  // the row that was current before this new one
};

std::vector<QString> fieldNames(const SQLite::Statement& rows) {
    std::vector<QString> names;
    names.reserve(static_cast<std::size_t>(rows.getColumnCount()));
    for (int field = 0; field < rows.getColumnCount(); ++field)
        names.push_back(QString::fromUtf8(rows.getColumnName(field)));
    return names;
}

RowId readAll(SQLite::Statement& rows, RowTable& table) {
    table.appendAll(rows);
    return table.rowCount();
}

bool fulfils(const Cell& cell, const Criterion& criterion) {
    if (cell.kind == Cell::Kind::Text)
        return criterion.isFulfilledBy(QByteArrayView(cell.text, qsizetype{cell.length}));
    return criterion.isFulfilledBy(cell.value());
}

}  // namespace

struct Recordset::Contents {
    Contents(Connection& connection, SQLite::Statement& rows, LockType lock);

    // Raises 3265 if there is none.
    int fieldNamed(QStringView name) const;

    // Raises 3021 if there is none.
    RowId currentRow() const;

    const Value* pendingValue(RowId row, int field) const;
    bool rowFulfils(RowId row, int field, const Criterion& criterion) const;

    // The index on this field, if there is one.
    const RowIndex* indexOn(int field) const;

    // What comes before every change: the index would no longer hold. Raises 3251 if nothing can be
    // written.
    RowWriter& writer();

    // Writes what is pending on these rows; all of it or, on an error, nothing.
    void write(const std::vector<RowId>& rows);
    const Cell* writeRow(RowId row);

    SQLite::Database& database;
    QString path;
    std::string statement;
    LockType lockType;
    std::vector<QString> fields;
    RowTable table;
    RowCursor cursor;
    std::map<RowId, PendingRow> pending;
    std::optional<RowWriter> preparedWriter;
    std::optional<RowIndex> index;
};

Recordset::Contents::Contents(Connection& connection, SQLite::Statement& rows, LockType lock)
    : database(connection.database()),
      path(connection.path()),
      statement(rows.getQuery()),
      lockType(lock),
      fields(fieldNames(rows)),
      table(rows.getColumnCount()),
      cursor(readAll(rows, table)) {}

// Most names are asked for as they stand.
int Recordset::Contents::fieldNamed(QStringView name) const {
    auto field = std::find(fields.begin(), fields.end(), name);
    if (field == fields.end())
        field = std::find_if(fields.begin(), fields.end(), [name](const QString& other) {
            return name.compare(other, Qt::CaseInsensitive) == 0;
        });
    if (field == fields.end())
        throw RuntimeError(ErrorNumber::ItemNotFound);
    return static_cast<int>(field - fields.begin());
}

RowId Recordset::Contents::currentRow() const {
    if (const auto row = cursor.current())
        return *row;
    throw RuntimeError(ErrorNumber::NoCurrentRecord);
}

const Value* Recordset::Contents::pendingValue(RowId row, int field) const {
    const auto waiting = pending.find(row);
    if (waiting == pending.end())
        return nullptr;
    const auto change = waiting->second.changes.find(field);
    return change == waiting->second.changes.end() ? nullptr : &change->second;
}

bool Recordset::Contents::rowFulfils(RowId row, int field, const Criterion& criterion) const {
    if (const Value* value = pendingValue(row, field))
        return criterion.isFulfilledBy(*value);
    return fulfils(table.row(row)[field], criterion);
}

const RowIndex* Recordset::Contents::indexOn(int field) const {
    return index && index->field() == field ? &*index : nullptr;
}

RowWriter& Recordset::Contents::writer() {
    index.reset();
    if (!preparedWriter && lockType != adLockReadOnly) {
        auto base = raisingStoreErrors(path, [&] { return findBaseTable(database, statement); });
        if (base)
            preparedWriter.emplace(database, *std::move(base), table);
    }
    if (!preparedWriter)
        throw RuntimeError(ErrorNumber::NotUpdatable);
    return *preparedWriter;
}

void Recordset::Contents::write(const std::vector<RowId>& rows) {
    raisingStoreErrors(path, [&] {
        SQLite::Transaction transaction(database, SQLite::TransactionBehavior::IMMEDIATE);
        std::vector<const Cell*> written;
        written.reserve(rows.size());
        for (const RowId row : rows)
            written.push_back(writeRow(row));
        transaction.commit();
        for (std::size_t i = 0; i < rows.size(); ++i) {
            table.replace(rows[i], written[i]);
            pending.erase(rows[i]);
        }
    });
}

const Cell* Recordset::Contents::writeRow(RowId row) {
    const PendingRow& waiting = pending.at(row);
    return waiting.isNew ? writer().insert(waiting.changes)
                         : writer().update(table.row(row), waiting.changes);
}

Recordset::Recordset(Connection& connection, const QString& statement, LockType lockType)
    : contents_(raisingStoreErrors(connection.path(), [&] {
          SQLite::Statement rows(connection.database(), statement.toStdString());
          return std::make_unique<Contents>(connection, rows, lockType);
      })) {}

Recordset::~Recordset() = default;
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;

Recordset::Contents& Recordset::open() const {
    if (!contents_)
        throw RuntimeError(ErrorNumber::ObjectClosed);
    return *contents_;
}

void Recordset::Close() {
    open();
    contents_.reset();
}

ObjectState Recordset::State() const {
    return contents_ ? adStateOpen : adStateClosed;
}

Long Recordset::RecordCount() const {
    return open().cursor.count();
}

bool Recordset::BOF() const {
    return open().cursor.isBeforeFirst();
}

bool Recordset::EndOfFile() const {
    return open().cursor.isBehindLast();
}

Long Recordset::AbsolutePosition() const {
    return open().cursor.absolutePosition();
}

Long Recordset::Bookmark() const {
    return open().currentRow();
}

void Recordset::setBookmark(Long bookmark) {
    if (!open().cursor.moveTo(bookmark))
        throw RuntimeError(ErrorNumber::NoCurrentRecord);
}

void Recordset::MoveFirst() {
    open().cursor.moveFirst();
}

void Recordset::MoveLast() {
    open().cursor.moveLast();
}

void Recordset::MoveNext() {
    open().cursor.moveBy(1);
}

void Recordset::MovePrevious() {
    open().cursor.moveBy(-1);
}

void Recordset::Move(Long rows) {
    open().cursor.moveBy(rows);
}

void Recordset::Find(const QString& criteria) {
    Contents& set = open();
    const Criterion criterion(criteria);
    const int field = set.fieldNamed(criterion.field());
    RowId row = set.currentRow();
    const RowIndex* index = set.indexOn(field);
    if (const auto number = criterion.equalNumber(); index && number) {
        if (const auto found = index->find(*number, row))
            set.cursor.moveTo(*found);
        else
            set.cursor.moveBehindLast();
        return;
    }
    while (!set.rowFulfils(row, field, criterion)) {
        set.cursor.moveBy(1);
        if (set.cursor.isBehindLast())
            return;
        row = set.currentRow();
    }
}

void Recordset::indexForFind(QStringView name) {
    Contents& set = open();
    const int field = set.fieldNamed(name);
    const bool hasEveryRow = set.cursor.count() == set.table.rowCount();
    if (set.pending.empty() && hasEveryRow)
        set.index.emplace(set.table, field);
}

Value Recordset::Fields(QStringView name) const {
    const Contents& set = open();
    const int field = set.fieldNamed(name);
    const RowId row = set.currentRow();
    if (const Value* value = set.pendingValue(row, field))
        return *value;
    return set.table.row(row)[field].value();
}

void Recordset::Edit() {
    open().writer();
    open().currentRow();
}

void Recordset::Collect(QStringView name, Value value) {
    Contents& set = open();
    set.writer();
    const int field = set.fieldNamed(name);
    set.pending[set.currentRow()].changes[field] = std::move(value);
}

void Recordset::AddNew() {
    Contents& set = open();
    set.writer();
    const auto before = set.cursor.current();
    const RowId row = set.table.appendNulls();
    set.cursor.append(row);
    set.pending[row] = {.changes = {}, .isNew = true, .before = before};
}

void Recordset::Update() {
    UpdateBatch(adAffectCurrent);
}

void Recordset::UpdateBatch(AffectRecords affected) {
    Contents& set = open();
    set.writer();
    std::vector<RowId> rows;
    if (affected == adAffectCurrent)
        rows.push_back(set.currentRow());
    else
        for (const auto& [row, waiting] : set.pending)
            rows.push_back(row);
    std::erase_if(rows, [&set](RowId row) { return !set.pending.contains(row); });
    if (!rows.empty())
        set.write(rows);
}

void Recordset::CancelUpdate() {
    Contents& set = open();
    const auto cancelled = set.pending.extract(set.currentRow());
    if (cancelled.empty() || !cancelled.mapped().isNew)
        return;
    set.cursor.removeCurrent();
    const auto before = cancelled.mapped().before;
    if (!before || !set.cursor.moveTo(*before))
        set.cursor.moveBehindLast();
}

void Recordset::Delete(AffectRecords affected) {
    if (affected != adAffectCurrent)
        throw RuntimeError(ErrorNumber::WrongArguments);
    Contents& set = open();
    RowWriter& writer = set.writer();
    const RowId row = set.currentRow();
    const auto waiting = set.pending.find(row);
    const bool isStored = waiting == set.pending.end() || !waiting->second.isNew;
    if (isStored)
        raisingStoreErrors(set.path, [&] { writer.remove(set.table.row(row)); });
    set.pending.erase(row);
    set.cursor.removeCurrent();
}
