// The reading of old_database.h.
#include "store/old_database.h"

#include <QStringList>
#include <algorithm>

#include "store/file_error.h"

namespace {

bool isOfKind(JetType type, OldField::Kind kind) {
    switch (kind) {
        case OldField::Number:
            return type == JetType::Byte || type == JetType::Int16 || type == JetType::Int32;
        case OldField::Text:
            return type == JetType::Text || type == JetType::Memo;
        case OldField::Date:
            return type == JetType::Date;
        default:
            return type == JetType::Boolean;
    }
}

// Whether there is no such field, or it is of that kind.
bool fits(const JetTable& table, const OldField& field) {
    return std::all_of(table.columns().begin(), table.columns().end(), [&](const auto& column) {
        return column.name.compare(field.name, Qt::CaseInsensitive) != 0 ||
               isOfKind(column.type, field.kind);
    });
}

}  // namespace

OldDatabase::OldDatabase(const QString& path) : path_(path), file_(path) {}

JetRows OldDatabase::rows(const QString& table, const std::vector<OldField>& fields) const {
    const JetTable found = file_.table(table);
    QStringList names;
    for (const OldField& field : fields) {
        if (!fits(found, field))
            throw objection(ErrorNumber::TypeMismatch,
                            QStringLiteral("field %1 of table %2 is of another type than in Ondara")
                                .arg(field.name, table));
        names += field.name;
    }
    return found.rows(names);
}

Long OldDatabase::lastNumber(const QString& table) const {
    return file_.table(table).lastNumber();
}

RuntimeError OldDatabase::objection(ErrorNumber number, const QString& cause) const {
    return fileError(number, cause, path_);
}
