// Names and values in statements that are put together at run time.
#pragma once

#include <string>

#include "store/value.h"

namespace SQLite {
class Statement;
}

// "a, b, c" of anything that `piece` turns into text.
template <class Items, class Piece>
std::string joined(const Items& items, const char* separator, Piece piece) {
    std::string text;
    for (const auto& item : items)
        text += (text.empty() ? "" : separator) + piece(item);
    return text;
}

// A name of any letters, as SQL takes it.
std::string quoted(const std::string& name);

// Gives a statement the value of its question mark, counted from 1.
void bindValue(SQLite::Statement& statement, int place, const Value& value);
