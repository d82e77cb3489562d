// Where everything in a chart lies.
#pragma once

#include <QLineF>
#include <QPointF>
#include <functional>

#include "controls/chart_content.h"

// How much room a text takes, in twips.
struct TextMeasure {
    double lineHeight;
    std::function<double(const QString&)> width;
};

struct ChartGridLine {
    double y;
    bool isZero;
    QString label;
    QRectF labelBox;
};

// A row's label. Its box is told from the anchor, and turned against the clock around it by the
// angle that all row labels share.
struct ChartRowLabel {
    int row;
    QString text;
    QPointF anchor;
    QRectF box;
};

struct ChartBar {
    int series;
    QRectF box;
};

struct ChartLegendEntry {
    int series;
    QLineF sample;  // a piece of the series' line, or a piece lengthwise of its bars
    QRectF textBox;
};

// Lengths are twips from the chart's top left corner.
struct ChartLayout {
    QRectF titleBox;
    std::vector<ChartGridLine> grid;  // from the top
    std::vector<double> ticks;        // where on the x axis every fifth row of a line chart lies
    double rowLabelAngle;             // in degrees
    std::vector<ChartRowLabel> rowLabels;
    std::vector<std::vector<QPointF>> curves;  // of lines: a point a row, one curve a column
    std::vector<ChartBar> bars;                // of bars: one a value, those of a row side by side
    std::optional<QRectF> markedBand;
    std::vector<ChartLegendEntry> legend;
};

// The middle of a row's band, counted from 0.
double rowCentre(const ChartContent& content, int row);

// The height at which a value of per cent lies.
double valueHeight(const ChartContent& content, double percent);

// Every fifth row is labelled: level where the labels fit beside each other, else turned, and where
// there is no room for that, level and fewer.
ChartLayout layOutChart(const ChartContent& content, const TextMeasure& measure);
