// A line chart or bar chart of up to seven series.
#pragma once

#include <QImage>
#include <QMarginsF>
#include <QPixmap>
#include <QWidget>
#include <optional>

#include "controls/chart_content.h"

enum class MousePointerShape { Default = 0, ArrowQuestion = 14 };

// Each series is a column of the table that the chart is given whole. Series, rows and columns
// count from 1. What it shows can be read back as plain data from content().
class Chart final : public QWidget {
    Q_OBJECT

  public:
    explicit Chart(QWidget* parent = nullptr);

    // Fixes the chart's size, and the place of the plot area in it, both in twips.
    void setFixedTwips(QSizeF size, const QRectF& plotArea);

    // Keeps the plot area so many twips from the chart's edges, whatever size its layout gives it.
    void setPlotMargins(const QMarginsF& margins);

    const ChartContent& content() const { return content_; }

    void setChartType(ChartType type);

    // Takes over the values. Every column must have as many of them as there are rows.
    // Raises 380 for more than seven columns.
    void setChartData(ChartTable table);

    // One value. Raises 381 outside the table.
    double Data(int row, int column) const;

    bool ShowLegend() const { return content_.showLegend; }
    void setShowLegend(bool show);
    void setLegendLocation(LegendLocation location);

    // The font of the legend, which all texts of the chart share.
    void setLegendFont(const QString& family, int points);

    // Makes room for bars of negative values.
    void setNegativeBars(bool show);

    // These raise 381 for a series beyond the seventh. The colours of a pen, a brush and an edge
    // are drawn as they are, whatever the palette.
    void setLegendText(int series, const QString& text);
    void setSeriesColour(int series, CycleColour colour);
    void setSeriesPattern(int series, PenPattern pattern);
    void setPenColour(int series, const QColor& colour);
    void setBarBrush(int series, const ChartBrush& brush);
    void setEdgeColour(int series, const QColor& colour);

    // The title stands at the top, shortened where it does not fit.
    void setTitle(const QString& title);

    // Makes one row stand out; none for 0.
    void setMarkedRow(int row);

    // The chart as it stands, so many times as large as on the screen.
    QPixmap picture(double enlargement) const;

    // The chart as it is drawn on paper: on white, with 300 dots to the inch.
    QImage paperPicture() const;

    MousePointerShape MousePointer() const;
    void setMousePointer(MousePointerShape shape);

    // The tip follows the mouse, and its text may change while it is shown.
    // It is shown as it stands, blanks and what looks like markup included.
    QString ToolTipText() const { return toolTipText_; }
    void setToolTipText(const QString& text);

  Q_SIGNALS:
    // The mouse has moved over the chart to this place, in twips from its top left corner.
    void MouseMove(double X, double Y);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

  private:
    ChartSeries& seriesAt(int series);
    void fillSize();

    ChartContent content_;
    QString toolTipText_;
    std::optional<QMarginsF> plotMargins_;  // none: the size is fixed
};
