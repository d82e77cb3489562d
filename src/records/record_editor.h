// What the editors of people and of categories share: one row of a table at a time, browsed or
// edited.
#pragma once

#include <memory>
#include <optional>

#include "controls/form.h"
#include "cycles/integers.h"
#include "runtime/message.h"
#include "store/connection.h"
#include "store/recordset.h"

class BoundFields;
class RecordBar;

// Holds a record set for as long as it is loaded. While it browses, its inputs are locked, and
// arrows and keys walk through the rows. Add and Edit open the inputs until Update or Cancel. What
// is typed is pending on its row; Update writes every pending row of the set, and an error leaves
// the editing and what was typed as they are. It checks no value: what is required, the store
// knows.
//
// A Cancel forgets that something has been written before, and goes back to the row that was
// current at the last Add, if there was one. It drops what is pending on the current row alone;
// what is pending on others, the next Update writes.
class RecordEditor : public Form {
    Q_OBJECT

  public:
    ~RecordEditor() override;

    bool mbEditFlag = false;     // an edit of the current row is under way
    bool mbAddNewFlag = false;   // a new row is under way
    bool mbDataChanged = false;  // cleared by every move and update
    bool mbListsStale = false;   // something was written that the main window does not show
    Long mvBookMark = 0;         // the row that was current when Add was pressed; 0 if none was

  protected:
    explicit RecordEditor(QWidget* owner);

    // Takes the bar into service; once, when the form is made.
    void useBar(RecordBar& bar);

    // Opens the record set, to which the inputs can then be bound. The form browses, and nothing
    // has been written yet.
    void openRecords(const QString& statement);

    Connection& connection() { return *connection_; }
    Recordset& adoPrimaryRS() { return *adoPrimaryRS_; }
    BoundFields& inputs() { return *inputs_; }

    // Shows the current row and its place; after every move of the set.
    void adoPrimaryRS_MoveComplete();

    void Form_Unload() override;
    void Form_KeyDown(QKeyEvent& key) override;

    // Keeps the user from changing the inputs, or lets him.
    virtual void LockFields(bool locked) = 0;

    // What follows a step by an arrow; before a step off an end is taken back.
    virtual void afterStep() {}

    // What a new row begins with, and where the form goes after an update.
    virtual void afterAdd() {}
    virtual void afterUpdate() {}

    virtual Message lastRowRefusal() = 0;
    virtual Message deletionQuestion() = 0;

    // Fills the main window's lists with what has been written.
    virtual void refillMainLists() = 0;

  private:
    using Move = void (Recordset::*)();
    void go(Move where);
    void goTo(Move end);
    void step(Move by, bool (Recordset::*isOff)() const, Move back);
    void goBack();
    void beginEditing(bool& flag, const QString& status);
    void endEditing();
    Answer ask(Message message);

    void cmdAdd_Click();
    void cmdCancel_Click();
    void cmdClose_Click();
    void cmdDelete_Click();
    void cmdEdit_Click();
    void cmdFirst_Click();
    void cmdLast_Click();
    void cmdNext_Click();
    void cmdPrevious_Click();
    void cmdUpdate_Click();

    RecordBar* bar_ = nullptr;
    std::optional<Connection> connection_;
    std::optional<Recordset> adoPrimaryRS_;
    std::unique_ptr<BoundFields> inputs_;
};
