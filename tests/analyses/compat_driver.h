// The comparison with others, driven as its user does.
#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QRadioButton>
#include <memory>

#include "analyses/birthdate_match.h"
#include "analyses/frmCompat.h"
#include "controls/button_bar.h"
#include "controls/button_menu.h"
#include "controls/chart.h"
#include "controls/combo_box.h"
#include "controls/list_box.h"
#include "controls/progress_bar.h"
#include "cycles/calendar.h"
#include "runtime/event.h"
#include "shell/frmMain.h"
#include "support/main_window.h"

// Smith, Anna of the family is compared with Adler, Ben and Zed, who are friends.
class CompatTest : public MainWindowTest {
  protected:
    // Opens it for the person who is chosen in the main window.
    void openForChosen() {
        form_ = std::make_unique<frmCompat>(&window());
        runEvent([this] { form_->Show(); });
    }

    void openFor(const QString& displayText) {
        loadAndChoose(displayText);
        openForChosen();
    }

    void open() { openFor(kAnna); }

    template <class Control>
    Control& of(const char* name) {
        return child<Control>(*form_, QString::fromLatin1(name));
    }

    ListBox& list() { return of<ListBox>("lstCompat"); }
    ComboBox& filter() { return of<ComboBox>("cbCatCompat"); }
    Chart& bars() { return of<Chart>("chtCompatBars"); }
    Chart& lines() { return of<Chart>("chtCompatLine"); }
    ButtonMenu& faves() { return *form_->findChild<ButtonMenu*>(); }

    QString textOf(const char* label) { return of<QLabel>(label).text(); }

    QStringList listed() {
        QStringList texts;
        for (int row = 0; row < list().ListCount(); ++row)
            texts += list().List(row);
        return texts;
    }

    QStringList favourites() {
        QStringList texts;
        for (int index = 1; index <= faves().Count(); ++index)
            texts += faves().Text(index);
        return texts;
    }

    void clickRow(int row) {
        const QModelIndex place = list().model()->index(row, 0);
        click(*list().viewport(), list().visualRect(place).center());
    }

    void clickTab(int item) {
        click(child<QAbstractButton>(*form_, QStringLiteral("bbCompat_%1").arg(item)));
    }

    void clickOption(const char* name) { click(of<QRadioButton>(name), {8, 8}); }

    void clickFavourite(int index) { Q_EMIT faves().ButtonMenuClick(index); }

    // Everything that a comparison shows in words.
    QStringList shown() {
        return {textOf("lblE"),    textOf("lblP"),    textOf("lblI"),        textOf("lblAvg"),
                textOf("lblText"), textOf("lblSign"), bars().content().title};
    }

    void expectMatchWith(const QString& name, Date birthdate) {
        const BirthdateMatch match = matchBirthdates(kAnnaBorn, birthdate);
        EXPECT_EQ(shown(),
                  QStringList({match.emotional.percent, match.physical.percent,
                               match.intellectual.percent,
                               QStringLiteral("Compatibility thermometer: ") + match.average,
                               match.advice, match.sign, QStringLiteral("Anna Smith and ") + name}))
            << name.toStdString();
    }

    void expectReport(const QString& error) {
        host_.expectMessage(error + QStringLiteral(". Please report this error to the author."));
    }

    const QString kAnna = QStringLiteral("Smith, Anna");
    const QString kBen = QStringLiteral("Adler, Ben");
    const QString kZed = QStringLiteral("Zed");
    const Date kAnnaBorn = modCycles::DateSerial(1972, 10, 20);
    const Date kBenBorn = modCycles::DateSerial(1990, 5, 5);
    const Date kZedBorn = modCycles::DateSerial(1985, 1, 31);

    std::unique_ptr<frmCompat> form_;
};
