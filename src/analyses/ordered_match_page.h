// The page of the ordered match: a grid of people, the best match first.
#pragma once

#include <QWidget>
#include <memory>

#include "analyses/ordered_match.h"

class ComboBox;

namespace Ui {
class OrderedMatchPage;
}

// Keeps the result of the last search. Once the database is open, a search freezes the grid, and
// only its success lets the grid be painted again.
class OrderedMatchPage final : public QWidget {
    Q_OBJECT

  public:
    explicit OrderedMatchPage(QWidget* parent = nullptr);
    ~OrderedMatchPage() override;

    // Gives the grid its columns, headers and colours.
    void SetGrid();

    // Compares a person with everybody, a set that the caller holds, or, where one of `categories`
    // but the first is selected or a gender, with those people, who are read anew. The first
    // category stands for all.
    void search(Recordset& everybody, const ComparedPerson& person, const ComboBox& categories);

  Q_SIGNALS:
    // The button was pressed; whoever knows the people answers with a search.
    void cmdSearch_Click();

  private:
    void optSort_Click(int Index);

    void startAnew();
    MatchFilter chosenFilter() const;
    void showMatches(Recordset& people, const ComparedPerson& person,
                     const MatchSelection& selection);
    void tell(const QString& text);

    std::unique_ptr<Ui::OrderedMatchPage> ui_;
};
