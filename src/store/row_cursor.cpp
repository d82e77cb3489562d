// The moves of row_cursor.h.
#include "store/row_cursor.h"

#include <algorithm>
#include <numeric>

#include "runtime/errors.h"

RowCursor::RowCursor(RowId rowCount) : rows_(static_cast<std::size_t>(rowCount)) {
    std::iota(rows_.begin(), rows_.end(), 1);
}

std::optional<RowId> RowCursor::current() const {
    if (inGap_ || place_ < 0 || place_ >= count())
        return std::nullopt;
    return rows_[static_cast<std::size_t>(place_)];
}

Long RowCursor::absolutePosition() const {
    if (inGap_ || rows_.empty())
        return -1;
    if (isBeforeFirst())
        return -2;
    return isBehindLast() ? -3 : place_ + 1;
}

void RowCursor::moveFirst() {
    if (rows_.empty())
        throw RuntimeError(ErrorNumber::NoCurrentRecord);
    place_ = 0;
    inGap_ = false;
}

void RowCursor::moveLast() {
    moveFirst();
    place_ = count() - 1;
}

void RowCursor::moveBy(Long rows) {
    if (rows == 0)
        return;
    if (rows > 0 ? isBehindLast() : isBeforeFirst())
        throw RuntimeError(ErrorNumber::NoCurrentRecord);
    // The row behind the gap is one step forward, though it has the gap's index.
    const std::int64_t steps = inGap_ && rows > 0 ? std::int64_t{rows} - 1 : rows;
    place_ = static_cast<Long>(std::clamp<std::int64_t>(place_ + steps, -1, count()));
    inGap_ = false;
}

void RowCursor::moveBehindLast() {
    place_ = count();
    inGap_ = false;
}

bool RowCursor::moveTo(RowId row) {
    const auto found = std::lower_bound(rows_.begin(), rows_.end(), row);
    if (found == rows_.end() || *found != row)
        return false;
    place_ = static_cast<Long>(found - rows_.begin());
    inGap_ = false;
    return true;
}

void RowCursor::append(RowId row) {
    rows_.push_back(row);
    place_ = count() - 1;
    inGap_ = false;
}

void RowCursor::removeCurrent() {
    rows_.erase(rows_.begin() + place_);
    inGap_ = true;
}
