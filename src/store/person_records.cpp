// The delimited lines of person_records.h.
#include "store/person_records.h"

#include "runtime/errors.h"
#include "runtime/numbers.h"

namespace {

constexpr QChar kQuote = u'"';

// Walks over the lines of a file.
class Reader {
  public:
    explicit Reader(const QString& lines) : lines_(lines) {}

    bool isAtEnd() const { return place_ >= lines_.size(); }

    PersonRecord next() {
        const QString number = upTo(u',').trimmed();
        const QString beforeText = upTo(kQuote);
        if (!beforeText.trimmed().isEmpty())
            throw RuntimeError(ErrorNumber::TypeMismatch);
        const QString text = upTo(kQuote);
        passOverLine();
        return {wholeNumber(number), text};
    }

  private:
    // The characters before the next `mark`, which is passed over.
    QString upTo(QChar mark) {
        const qsizetype end = lines_.indexOf(mark, place_);
        if (end < 0)
            throw RuntimeError(ErrorNumber::InputPastEnd);
        QString passed = lines_.mid(place_, end - place_);
        place_ = end + 1;
        return passed;
    }

    void passOverLine() {
        const qsizetype end = lines_.indexOf(u'\n', place_);
        place_ = end < 0 ? lines_.size() : end + 1;
    }

    const QString& lines_;
    qsizetype place_ = 0;
};

}  // namespace

QString writtenRecords(const std::vector<PersonRecord>& records) {
    QString lines;
    for (const PersonRecord& record : records)
        lines += numberText(record.nameId) + u',' + kQuote + record.displayText + kQuote +
                 QStringLiteral("\r\n");
    return lines;
}

void readRecords(const QString& lines, const RecordTaker& take) {
    for (Reader reader(lines); !reader.isAtEnd();)
        take(reader.next());
}

PersonRecord readFirstRecord(const QString& lines) {
    return Reader(lines).next();
}
