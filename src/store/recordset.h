// A record set: the rows that a statement returned, to walk through and to change.
#pragma once

#include <QString>
#include <QStringView>
#include <memory>

#include "store/connection.h"
#include "store/value.h"

enum LockType { adLockReadOnly = 1, adLockOptimistic = 3 };
enum AffectRecords { adAffectCurrent = 1, adAffectAll = 3 };
enum ObjectState { adStateClosed = 0, adStateOpen = 1 };

// A static cursor on the client's side: it reads every row when it is opened and then holds no
// lock; what others write later is seen by opening it again. It stands on a row, before the first
// (BOF) or behind the last (EOF); a set without rows is at both.
//
// Changes are pending on their row until they are written, and stay there while the set moves. A
// new row stands at the end of the set until the set is opened again. Writing is optimistic: a row
// is found by its key and by the values read; one that has changed or gone meanwhile raises an
// error, and the pending values stay.
//
// Field names match without regard to case; an unknown one raises 3265. An operation that needs a
// row and has none raises 3021. A set that is read-only, or whose statement does not read one
// table with its key, raises 3251 on any change; a closed one raises 3704 on everything but State.
class Recordset {
  public:
    // Sends the statement and reads all rows. Stands on the first row, or at both ends. What the
    // connection opened must stay open as long as the set writes through it.
    Recordset(Connection& connection, const QString& statement,
              LockType lockType = adLockOptimistic);
    ~Recordset();
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;

    // Frees the rows and forgets what is pending.
    void Close();
    ObjectState State() const;

    // The rows, new and pending ones among them, deleted ones not.
    Long RecordCount() const;
    bool BOF() const;
    bool EndOfFile() const;

    // The place of the current row, counted from 1; -2 at BOF, -3 at EOF, -1 in an empty set and
    // after Delete.
    Long AbsolutePosition() const;

    // A number above 0 that stays with the current row as long as the set is open. Assigning one
    // goes to its row, and raises 3021 if that has been deleted.
    Long Bookmark() const;
    void setBookmark(Long bookmark);

    // MoveFirst and MoveLast raise 3021 on an empty set; MoveNext at EOF and MovePrevious at BOF
    // raise it too. After Delete, MoveNext goes to the row that followed the deleted one.
    void MoveFirst();
    void MoveLast();
    void MoveNext();
    void MovePrevious();

    // Moves by that many rows, at most one beyond either end; from beyond an end it does not lead
    // further away, but raises 3021.
    void Move(Long rows);

    // Goes to the first row, from the current one on and including it, that fulfils the criteria,
    // which are written as criterion.h says. No match: the set stands at EOF. Raises 3021 where
    // there is no current row, 3001 for criteria it cannot read.
    void Find(const QString& criteria);

    // Makes Find go straight to a number that this field is to be equal to, however many rows there
    // are; the result is the same. It lasts until something of the set is to be changed, and there
    // is none for a set with pending changes or without a row that it once had.
    void indexForFind(QStringView name);

    // The value of a field in the current row, pending ones included.
    Value Fields(QStringView name) const;

    // Makes sure that the current row can be changed: raises what Collect would raise, and changes
    // nothing. After it, Collect asks nothing more of the store.
    void Edit();

    // Writes a field of the current row; it is pending until the row is updated.
    void Collect(QStringView name, Value value);

    // Adds a row without values at the end of the set and stands on it.
    void AddNew();

    // Writes the current row's pending values at once. A new row learns its generated key.
    void Update();

    // adAffectAll writes the pending values of every row, in one transaction: all or nothing.
    void UpdateBatch(AffectRecords affected);

    // Forgets the current row's pending values; a new row that was never written goes, and the set
    // then stands on the row that was current before AddNew, or at EOF if none was.
    void CancelUpdate();

    // Deletes the current row from the store at once, by adAffectCurrent only. The set stands where
    // it was, on no row, until it moves.
    void Delete(AffectRecords affected);

  private:
    struct Contents;
    Contents& open() const;

    std::unique_ptr<Contents> contents_;  // none when closed
};
