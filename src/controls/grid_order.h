// The orders of a grid's rows: the generic one, numbers as numbers and everything else as text, and
// the numeric one.
//
// In the generic order, two texts that are numbers from end to end are compared by value, any
// others by the one order of texts (text_order.h). These two rules can run in a circle: 9 < 10 < 1a
// < 9. So a number is to a text that is none what "0" is to it: all numbers stand together, before
// "1a" and behind "-a".
#pragma once

#include <QStringView>
#include <compare>
#include <functional>
#include <span>

std::weak_ordering compareGenerically(QStringView a, QStringView b);

// The text by which a row is sorted, of several from 0 on: the first that is not equal decides. It
// must stay where it is as long as the sorting takes. It is asked for every row up to the largest
// number of those to sort, also for some that are not among them.
using SortText = std::function<QStringView(int row, int place)>;

// Puts rows in ascending order by that many texts. Rows of which all are equal keep their order.
void sortGenerically(std::span<int> rows, int texts, const SortText& textOf);

// The same in descending order of the numbers at the texts' beginnings; a text without one is 0.
void sortNumerically(std::span<int> rows, int texts, const SortText& textOf);
