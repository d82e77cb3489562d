// The two ways between controls and fields.
#include "records/bound_fields.h"

#include <QCheckBox>
#include <QLabel>
#include <QScopedValueRollback>

#include "controls/date_picker.h"
#include "controls/multi_line_text_box.h"
#include "controls/text_box.h"
#include "records/bound_values.h"
#include "runtime/event.h"
#include "store/recordset.h"

// A field, and how its control shows a value and gives one.
class BoundFields::Field final : public QObject {
  public:
    Field(BoundFields& owner, QString name, std::function<void(const Value&)> show,
          std::function<Value()> entered)
        : owner_(owner),
          name_(std::move(name)),
          show_(std::move(show)),
          entered_(std::move(entered)) {}

    void show() { show_(owner_.hasRow() ? owner_.rows_.Fields(name_) : Value()); }

    void changed() {
        if (!owner_.showing_ && owner_.hasRow())
            owner_.rows_.Collect(name_, entered_());
    }

  private:
    BoundFields& owner_;
    QString name_;
    std::function<void(const Value&)> show_;
    std::function<Value()> entered_;
};

BoundFields::BoundFields(Recordset& rows) : rows_(rows) {}
BoundFields::~BoundFields() = default;

BoundFields::Field& BoundFields::add(const QString& name, std::function<void(const Value&)> show,
                                     std::function<Value()> entered) {
    fields_.push_back(std::make_unique<Field>(*this, name, std::move(show), std::move(entered)));
    return *fields_.back();
}

void BoundFields::bind(TextBox& box, const QString& name) {
    const auto show = [&box](const Value& value) {
        box.setText(shownText(value));
        box.home(false);
    };
    Field& field = add(name, show, [&box] { return enteredText(box.text()); });
    onEvent(&box, &TextBox::textChanged, &field, &Field::changed);
}

void BoundFields::bind(MultiLineTextBox& box, const QString& name) {
    Field& field = add(
        name, [&box](const Value& value) { box.setText(shownText(value)); },
        [&box] { return enteredText(box.Text()); });
    onEvent(&box, &MultiLineTextBox::textChanged, &field, &Field::changed);
}

void BoundFields::bind(QCheckBox& box, const QString& name) {
    Field& field = add(
        name, [&box](const Value& value) { box.setChecked(shownCheck(value)); },
        [&box] { return Value(box.isChecked()); });
    onEvent(&box, &QCheckBox::toggled, &field, &Field::changed);
}

void BoundFields::bind(DatePicker& picker, const QString& name) {
    const auto show = [&picker](const Value& value) {
        if (const auto date = shownDate(value))
            picker.setValue(*date);
        else
            picker.setEmpty();
    };
    Field& field = add(name, show, [&picker] { return Value(picker.Value()); });
    onEvent(&picker, &DatePicker::Change, &field, &Field::changed);
}

void BoundFields::bind(QLabel& label, const QString& name) {
    add(
        name, [&label](const Value& value) { label.setText(shownText(value)); }, nullptr);
}

void BoundFields::show() {
    const QScopedValueRollback showing(showing_, true);
    for (const auto& field : fields_)
        field->show();
}

bool BoundFields::hasRow() const {
    return rows_.AbsolutePosition() > 0;
}
