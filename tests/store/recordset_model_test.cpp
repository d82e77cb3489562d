// The record set beside a plain model of it: whatever is done to both, both show the same.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <optional>

#include "store/databases.h"
#include "store/recordset.h"
#include "store/statements.h"
#include "support/errors.h"
#include "support/people.h"
#include "support/program_directory.h"
#include "support/properties.h"
#include "support/recording_host.h"

#ifdef RC_GTEST_PROP

namespace {

enum class Step {
    MoveFirst,
    MoveLast,
    MoveNext,
    MovePrevious,
    Move,
    Find,
    Bookmark,
    Collect,
    AddNew,
    Update,
    UpdateBatch,
    CancelUpdate,
    Delete
};
constexpr int kSteps = static_cast<int>(Step::Delete) + 1;

// A step, and a small number that it takes where it needs one.
using Action = std::pair<Step, int>;

struct ModelRow {
    int id;  // the place in which the set got it, from 1 on
    std::optional<QString> name;
    std::optional<QString> pending;
    bool isNew = false;
    int before = 0;  // the row that was current when this new one was added; 0 if none was

    std::optional<QString> shown() const { return pending ? pending : name; }
};

QString nameOfNumber(int number) {
    return QStringLiteral("n%1").arg(number);
}

// The record set of categories as a vector: place -1 is BOF, the size is EOF.
class Model {
  public:
    explicit Model(int rows) : lastId_(rows) {
        for (int id = 1; id <= rows; ++id)
            rows_.push_back({id, nameOfNumber(id), {}});
    }

    // Returns whether the step is refused.
    bool run(const Action& action) {
        const auto [step, number] = action;
        switch (step) {
            case Step::MoveFirst:
                return goTo(0);
            case Step::MoveLast:
                return goTo(size() - 1);
            case Step::MoveNext:
                return move(1);
            case Step::MovePrevious:
                return move(-1);
            case Step::Move:
                return move(number);
            case Step::Find:
                return find(nameOfNumber(std::abs(number)));
            case Step::Bookmark:
                return goToId(std::abs(number));
            case Step::Collect:
                if (!current())
                    return true;
                current()->pending = nameOfNumber(std::abs(number));
                return false;
            case Step::AddNew:
                addNew();
                return false;
            case Step::Update:
                return !current() || write({current()->id});
            case Step::UpdateBatch:
                return writeAll();
            case Step::CancelUpdate:
                return cancel();
            case Step::Delete:
                return remove();
        }
        return true;
    }

    ModelRow* current() {
        return !inGap_ && place_ >= 0 && place_ < size() ? &*(rows_.begin() + place_) : nullptr;
    }

    int size() const { return static_cast<int>(rows_.size()); }
    bool bof() const { return !inGap_ && (place_ < 0 || rows_.empty()); }
    bool eof() const { return !inGap_ && place_ >= size(); }
    int position() const {
        if (inGap_ || rows_.empty())
            return -1;
        return bof() ? -2 : eof() ? -3 : place_ + 1;
    }

    QStringList storedNames() const {
        QStringList names;
        for (const ModelRow& row : rows_)
            if (!row.isNew)
                names << *row.name;
        names.sort();
        return names;
    }

  private:
    bool goTo(int place) {
        if (rows_.empty())
            return true;
        place_ = place;
        inGap_ = false;
        return false;
    }

    bool goToId(int id) {
        const auto row = std::find_if(rows_.begin(), rows_.end(),
                                      [id](const ModelRow& other) { return other.id == id; });
        return row == rows_.end() || goTo(static_cast<int>(row - rows_.begin()));
    }

    bool move(int rows) {
        if (rows == 0)
            return false;
        if (rows > 0 ? eof() : bof())
            return true;
        if (inGap_ && rows > 0)
            --rows;
        place_ = std::clamp(place_ + rows, -1, size());
        inGap_ = false;
        return false;
    }

    bool find(const QString& name) {
        if (!current())
            return true;
        while (current() && current()->shown() != name)
            ++place_;
        return false;
    }

    void addNew() {
        const int before = current() ? current()->id : 0;
        rows_.push_back({++lastId_, {}, {}, true, before});
        goTo(size() - 1);
    }

    bool writeAll() {
        std::vector<int> ids;
        for (const ModelRow& row : rows_)
            ids.push_back(row.id);
        return write(ids);
    }

    // A new row without a name is rejected by the store, and then nothing is written.
    bool write(const std::vector<int>& ids) {
        const auto concerned = [&ids](const ModelRow& row) {
            return std::find(ids.begin(), ids.end(), row.id) != ids.end();
        };
        for (const ModelRow& row : rows_)
            if (concerned(row) && row.isNew && !row.pending)
                return true;
        for (ModelRow& row : rows_) {
            if (!concerned(row))
                continue;
            row.name = row.shown();
            row.pending.reset();
            row.isNew = false;
        }
        return false;
    }

    bool cancel() {
        if (!current())
            return true;
        current()->pending.reset();
        if (!current()->isNew)
            return false;
        const int before = current()->before;
        rows_.erase(rows_.begin() + place_);
        if (goToId(before)) {
            place_ = size();
            inGap_ = false;
        }
        return false;
    }

    bool remove() {
        if (!current())
            return true;
        rows_.erase(rows_.begin() + place_);
        inGap_ = true;
        return false;
    }

    std::vector<ModelRow> rows_;
    int lastId_;
    int place_ = 0;
    bool inGap_ = false;
};

void run(Recordset& set, const Action& action) {
    const auto [step, number] = action;
    switch (step) {
        case Step::MoveFirst:
            return set.MoveFirst();
        case Step::MoveLast:
            return set.MoveLast();
        case Step::MoveNext:
            return set.MoveNext();
        case Step::MovePrevious:
            return set.MovePrevious();
        case Step::Move:
            return set.Move(number);
        case Step::Find:
            return set.Find(QStringLiteral("Category = '%1'").arg(nameOfNumber(std::abs(number))));
        case Step::Bookmark:
            return set.setBookmark(std::abs(number));
        case Step::Collect:
            return set.Collect(u"Category", nameOfNumber(std::abs(number)));
        case Step::AddNew:
            return set.AddNew();
        case Step::Update:
            return set.Update();
        case Step::UpdateBatch:
            return set.UpdateBatch(adAffectAll);
        case Step::CancelUpdate:
            return set.CancelUpdate();
        case Step::Delete:
            return set.Delete(adAffectCurrent);
    }
}

void compare(const Recordset& set, Model& model) {
    RC_ASSERT(set.RecordCount() == model.size());
    RC_ASSERT(set.BOF() == model.bof());
    RC_ASSERT(set.EndOfFile() == model.eof());
    RC_ASSERT(set.AbsolutePosition() == model.position());
    const ModelRow* row = model.current();
    if (!row)
        return;
    RC_ASSERT(set.Bookmark() == row->id);
    const auto shown = row->shown();
    RC_ASSERT(set.Fields(u"Category") == (shown ? Value(*shown) : Value()));
}

QStringList storedNames() {
    Connection connection = openPersonDatabase();
    QStringList names;
    for (Recordset set(connection, statements::categories()); !set.EndOfFile(); set.MoveNext())
        names << set.Fields(u"Category").toText();
    names.sort();
    return names;
}

}  // namespace

RC_GTEST_PROP(RecordsetModel, ShowsAndStoresWhatAPlainVectorWould, ()) {
    RecordingHost host;
    ProgramDirectory directory(host);
    const int rows = *rc::gen::inRange(0, 5);
    for (int id = 1; id <= rows; ++id)
        addCategory(directory.people(), nameOfNumber(id));
    const auto actions = *rc::gen::container<std::vector<Action>>(rc::gen::pair(
        rc::gen::map(rc::gen::inRange(0, kSteps), [](int step) { return static_cast<Step>(step); }),
        rc::gen::inRange(-6, 7)));

    Connection connection = openPersonDatabase();
    Recordset set(connection, statements::categories());
    Model model(rows);
    for (const Action& action : actions) {
        const bool refused = model.run(action);
        RC_ASSERT((errorOf([&] { run(set, action); }) != 0) == refused);
        compare(set, model);
    }
    RC_ASSERT(storedNames() == model.storedNames());
}

#endif
