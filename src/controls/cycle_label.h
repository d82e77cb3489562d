// A label in the colour of a cycle.
#pragma once

#include <QLabel>
#include <optional>

#include "controls/cycle_colours.h"

// The shade is the one for the palette in force.
class CycleLabel final : public QLabel {
    Q_OBJECT

  public:
    explicit CycleLabel(QWidget* parent = nullptr) : QLabel(parent) {}

    void setCycle(CycleColour cycle);

    bool FontBold() const { return font().bold(); }
    void setFontBold(bool bold);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void followPalette();

    std::optional<CycleColour> cycle_;
};
