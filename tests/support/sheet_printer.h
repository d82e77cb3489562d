// A printer for tests, which prints on sheets of memory.
#pragma once

#include <QImage>
#include <QPainter>
#include <memory>
#include <vector>

#include "runtime/errors.h"
#include "runtime/printer.h"

// What came out of the printer, and what it is like.
struct PrinterTray {
    Long width = 11906;  // twips, A4
    Long height = 16838;
    Long offsetX = 0;  // dots
    Long offsetY = 0;
    int dotsPerInch = 96;
    bool isBroken = false;
    std::size_t paper = 100;          // sheets, without which it fails
    std::vector<QImage> sheets = {};  // of the jobs that were ended
    int droppedJobs = 0;

    // What is printed on a sheet, in twips from the corner of what can be printed.
    QRectF inked(std::size_t sheet) const {
        QRect all;
        const QImage& image = sheets.at(sheet);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y) != QColor(Qt::white))
                    all |= QRect(x, y, 1, 1);
            }
        }
        const double twipsPerDot = 1440.0 / dotsPerInch;
        return {QPointF(all.topLeft()) * twipsPerDot, QSizeF(all.size()) * twipsPerDot};
    }
};

class SheetPrinter final : public Printer {
  public:
    explicit SheetPrinter(PrinterTray& tray) : tray_(tray) {}

    Long Width() const override { return tray_.width; }
    Long Height() const override { return tray_.height; }
    Long physicalOffsetX() const override { return tray_.offsetX; }
    Long physicalOffsetY() const override { return tray_.offsetY; }
    double ScaleX(Long dots) const override { return toTwips(dots); }
    double ScaleY(Long dots) const override { return toTwips(dots); }

    void open() override {
        if (tray_.isBroken)
            throw RuntimeError(ErrorNumber::Printer);
        NewPage();
    }

    QPainter& hDC() override { return *painter_; }

    void NewPage() override {
        if (sheets_.size() == tray_.paper)
            throw RuntimeError(ErrorNumber::Printer);
        painter_.reset();
        const double scale = tray_.dotsPerInch / 1440.0;
        sheets_.emplace_back((QSizeF(tray_.width - 2 * toTwips(tray_.offsetX),
                                     tray_.height - 2 * toTwips(tray_.offsetY)) *
                              scale)
                                 .toSize(),
                             QImage::Format_RGB32);
        sheets_.back().fill(Qt::white);
        painter_ = std::make_unique<QPainter>(&sheets_.back());
        painter_->scale(scale, scale);
    }

    void EndDoc() override {
        painter_.reset();
        tray_.sheets = std::move(sheets_);
        sheets_.clear();
    }

    void KillDoc() override {
        painter_.reset();
        tray_.droppedJobs += sheets_.empty() ? 0 : 1;
        sheets_.clear();
    }

  private:
    double toTwips(Long dots) const { return dots * 1440.0 / tray_.dotsPerInch; }

    PrinterTray& tray_;
    std::vector<QImage> sheets_;
    std::unique_ptr<QPainter> painter_;
};
