// A printer of the desktop.
#pragma once

#include <QPainter>
#include <memory>

#include "runtime/printer.h"

class QPrinter;

// The whole of what the printer can reach is printed on. A job goes to the printer with its first
// drop of ink: one that is dropped before that leaves no trace, and one that is dropped behind it
// may come out as far as it went, by the printer. A job that is not ended is dropped with it.
class PaperPrinter final : public Printer {
  public:
    explicit PaperPrinter(std::unique_ptr<QPrinter> printer);
    ~PaperPrinter() override;

    Long Width() const override;
    Long Height() const override;
    Long physicalOffsetX() const override;
    Long physicalOffsetY() const override;
    double ScaleX(Long dots) const override;
    double ScaleY(Long dots) const override;
    void open() override;
    QPainter& hDC() override;
    void NewPage() override;
    void EndDoc() override;
    void KillDoc() override;

  private:
    std::unique_ptr<QPrinter> printer_;
    QPainter painter_;
};
