// Controls that are bound to the fields of a record set's current row.
#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <vector>

#include "store/value.h"

class DatePicker;
class MultiLineTextBox;
class QCheckBox;
class QLabel;
class Recordset;
class TextBox;

// Shows the current row in the controls, or nothing where there is none, and writes what becomes of
// a control's content, by the user or by code, into the row at once, where it is pending until the
// set writes it. What is typed while there is no row goes nowhere.
//
// A record set tells of no move: whoever moves it shows the row. The set and the controls must be
// there as long as this is.
class BoundFields final {
  public:
    explicit BoundFields(Recordset& rows);
    ~BoundFields();
    Q_DISABLE_COPY_MOVE(BoundFields)

    // Each binds a control to the field of this name.
    void bind(TextBox& box, const QString& name);
    void bind(MultiLineTextBox& box, const QString& name);
    void bind(QCheckBox& box, const QString& name);
    void bind(DatePicker& picker, const QString& name);
    void bind(QLabel& label, const QString& name);  // only shows

    void show();

  private:
    class Field;
    Field& add(const QString& name, std::function<void(const Value&)> show,
               std::function<Value()> entered);
    bool hasRow() const;

    Recordset& rows_;
    std::vector<std::unique_ptr<Field>> fields_;
    bool showing_ = false;
};
