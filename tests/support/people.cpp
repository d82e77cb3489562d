// The writing of people for tests. It goes past the record set, which is among what is tested.
#include "support/people.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <array>
#include <random>

namespace {

constexpr std::array kNames = {"Smith",    "García", "Müller",  "de Vries", "O'Brien", "Åkesson",
                               "Nováková", "Émile",  "Zed",     "abe",      "Øster",   "Curie",
                               "Lovelace", "Weiß",   "van Doe", "Иванов"};
constexpr std::array kFirstNames = {"Anna",  "Zoë",      "José",  "Ben",
                                    "Marie", "Jean-Luc", "Björn", "A"};

SQLite::Database openForWriting(const QString& database) {
    SQLite::Database file(database.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    file.exec("PRAGMA synchronous = OFF");
    return file;
}

void bind(SQLite::Statement& statement, int place, const Value& value) {
    if (value.isNull())
        statement.bind(place);
    else if (const auto* text = std::get_if<QString>(&value.content()))
        statement.bind(place, text->toStdString());
    else
        statement.bind(place, value.toDouble());
}

// Inserts people one by one through one statement.
class PersonInserter {
  public:
    explicit PersonInserter(SQLite::Database& file)
        : statement_(file,
                     "INSERT INTO Data (Name, FName, Birthdate, Gender, CatID, Notes) "
                     "VALUES (?, ?, ?, ?, ?, ?)") {}

    void insert(const PersonRow& person) {
        bind(statement_, 1, person.name);
        bind(statement_, 2, person.firstName);
        bind(statement_, 3, person.birthdate);
        bind(statement_, 4, Value(person.isFemale));
        bind(statement_, 5, person.catId);
        bind(statement_, 6, person.notes);
        statement_.exec();
        statement_.reset();
    }

  private:
    SQLite::Statement statement_;
};

// The generator's numbers are the same everywhere; the distributions of the standard library are
// not, so the remainder is taken.
Long upTo(std::mt19937& random, Long limit) {
    return static_cast<Long>(random() % static_cast<std::mt19937::result_type>(limit));
}

template <std::size_t size>
QString oneOf(const std::array<const char*, size>& texts, std::mt19937& random) {
    return QString::fromUtf8(texts[random() % size]);
}

PersonRow randomPerson(std::mt19937& random, Long categories) {
    constexpr Long kBirthDays = 45000;  // from 1900 to 2023
    PersonRow person;
    person.name = oneOf(kNames, random) + QString::number(upTo(random, 1000));
    if (upTo(random, 10) != 0)
        person.firstName = oneOf(kFirstNames, random);
    person.birthdate = Value(Date(1.0 + upTo(random, kBirthDays)));
    person.isFemale = upTo(random, 2) == 1;
    person.catId = 1 + upTo(random, categories);
    if (upTo(random, 4) == 0)
        person.notes = QStringLiteral("A note on %1, who likes walks").arg(person.name);
    return person;
}

}  // namespace

Long addCategory(const QString& database, const QString& category) {
    SQLite::Database file = openForWriting(database);
    SQLite::Statement statement(file, "INSERT INTO Category (Category) VALUES (?)");
    bind(statement, 1, category);
    statement.exec();
    return static_cast<Long>(file.getLastInsertRowid());
}

Long addPerson(const QString& database, const PersonRow& person) {
    SQLite::Database file = openForWriting(database);
    PersonInserter(file).insert(person);
    return static_cast<Long>(file.getLastInsertRowid());
}

void addManyPeople(const QString& database, Long people, Long categories) {
    for (Long category = 1; category <= categories; ++category)
        addCategory(database, QStringLiteral("Category %1").arg(category));
    SQLite::Database file = openForWriting(database);
    SQLite::Transaction transaction(file);
    PersonInserter inserter(file);
    std::mt19937 random(20000314);
    for (Long person = 0; person < people; ++person)
        inserter.insert(randomPerson(random, categories));
    transaction.commit();
}

void runSql(const QString& database, const QString& sql) {
    openForWriting(database).exec(sql.toStdString());
}

Value valueOf(const QString& database, const QString& query) {
    SQLite::Database file(database.toStdString());
    SQLite::Statement statement(file, query.toStdString());
    if (!statement.executeStep() || statement.getColumn(0).isNull())
        return {};
    const SQLite::Column column = statement.getColumn(0);
    if (column.isInteger())
        return Value(std::int64_t{column.getInt64()});
    if (column.isFloat())
        return column.getDouble();
    return QString::fromStdString(column.getString());
}
