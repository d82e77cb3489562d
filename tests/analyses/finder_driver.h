// What the tests of the search for events do with its window.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLabel>
#include <QSlider>
#include <QStatusBar>
#include <memory>

#include "analyses/frmFind.h"
#include "controls/combo_box.h"
#include "controls/date_picker.h"
#include "controls/list_view.h"
#include "controls/pictures.h"
#include "controls/progress_bar.h"
#include "runtime/event.h"
#include "shell/frmMain.h"
#include "support/main_window.h"

// Today, on which the window opens and "Newborn" is born.
inline constexpr Date kToday = modCycles::DateSerial(2000, 3, 14);

inline const QString kNewborn = QStringLiteral("Newborn");
inline const QString kNoneFound = QStringLiteral("None found");

// The entries of the units.
enum Unit { kDays, kWeeks, kMonths, kYears };

class EventFinder : public MainWindowTest {
  protected:
    EventFinder() { addPerson({.name = kNewborn, .birthdate = Value(kToday)}); }

    void openFor(const QString& displayText) {
        loadAndChoose(displayText);
        form_ = std::make_unique<frmFind>(&window());
        runEvent([this] { form_->Show(); });
    }

    template <class Control>
    Control& of(const char* name) {
        return child<Control>(*form_, QString::fromLatin1(name));
    }

    QString textOf(const char* label) { return of<QLabel>(label).text(); }
    bool isShown(const char* name) { return of<QWidget>(name).isVisibleTo(form_.get()); }

    void check(const char* button, bool checked = true) {
        of<QAbstractButton>(button).setChecked(checked);
    }

    void setPeriod(int length, Unit unit) {
        of<QSlider>("sldPeriod").setValue(length);
        of<ComboBox>("cbSpan").setListIndex(unit);
    }

    void search() { of<QAbstractButton>("cmdFind").click(); }

    // Searches single cycles for every kind of day.
    void searchCycles(std::initializer_list<const char*> cycles) {
        check("chkCustom");
        for (const char* cycle : cycles)
            check(cycle);
        for (const char* kind : {"chkPeak", "chkLow", "chkCritical"})
            check(kind);
        search();
    }

    ListView& list() { return of<ListView>("lvFind"); }
    int rows() { return list().model()->rowCount(); }
    int columns() { return list().model()->columnCount(); }

    // The texts of a row, divided by bars.
    QString row(int row) {
        QStringList texts;
        for (int column = 0; column < columns(); ++column)
            texts += list().model()->index(row, column).data().toString();
        return texts.join(u'|');
    }

    QStringList allRows() {
        QStringList texts;
        for (int each = 0; each < rows(); ++each)
            texts += row(each);
        return texts;
    }

    static bool isPicture(const QPixmap& picture, const char* key) {
        return picture.toImage() == smallPicture(QString::fromLatin1(key)).toImage();
    }

    // Whether a row begins with the picture of this key.
    bool hasPicture(int row, const char* key) {
        const QModelIndex first = list().model()->index(row, 0);
        return isPicture(first.data(Qt::DecorationRole).value<QPixmap>(), key);
    }

    void clickRow(int row) {
        click(*list().viewport(), list().visualRect(list().model()->index(row, 0)).center());
    }

    // The key goes where the focus is.
    void pressEsc() {
        pressKey(form_->focusWidget() ? *form_->focusWidget() : *form_, Qt::Key_Escape);
    }

    QString status() { return of<QStatusBar>("sbFind").currentMessage(); }

    std::unique_ptr<frmFind> form_;
};
