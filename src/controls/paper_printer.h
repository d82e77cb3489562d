// A printer of the desktop.
#pragma once

#include <QPainter>
#include <memory>

#include "runtime/printer.h"

class QPrinter;

// The whole of what the printer can reach is printed on. A job goes to the printer with its first
// drop of ink: one that is dropped before that leaves no trace.
class PaperPrinter final : public Printer {
  public:
    explicit PaperPrinter(std::unique_ptr<QPrinter> printer);
    ~PaperPrinter() override;

    Long Width() const override;
    Long Height() const override;
    Long ScaleWidth() const override;
    Long ScaleHeight() const override;
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
