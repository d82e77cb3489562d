// The spelling of names, and the binding of values.
#include "store/sql_pieces.h"

#include <SQLiteCpp/Statement.h>

#include <variant>

std::string quoted(const std::string& name) {
    std::string text = "\"";
    for (const char letter : name)
        text += letter == '"' ? std::string("\"\"") : std::string(1, letter);
    return text + '"';
}

void bindValue(SQLite::Statement& statement, int place, const Value& value) {
    struct Binder {
        SQLite::Statement& statement;
        int place;

        void operator()(std::monostate) const { statement.bind(place); }
        void operator()(std::int64_t number) const { statement.bind(place, number); }
        void operator()(double number) const { statement.bind(place, number); }
        void operator()(const QString& text) const { statement.bind(place, text.toStdString()); }
    };
    std::visit(Binder{statement, place}, value.content());
}
