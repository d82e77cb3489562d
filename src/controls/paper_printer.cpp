// The pages of Qt's printer.
#include "controls/paper_printer.h"

#include <QPrinter>
#include <cmath>

#include "controls/twips.h"
#include "runtime/errors.h"

namespace {

Long twips(double points) {
    return static_cast<Long>(std::lround(points * kTwipsPerPoint));
}

}  // namespace

PaperPrinter::PaperPrinter(std::unique_ptr<QPrinter> printer) : printer_(std::move(printer)) {
    QPageLayout layout = printer_->pageLayout();
    layout.setMargins(layout.minimumMargins());
    printer_->setPageLayout(layout);
}

PaperPrinter::~PaperPrinter() {
    KillDoc();
}

Long PaperPrinter::Width() const {
    return twips(printer_->paperRect(QPrinter::Point).width());
}

Long PaperPrinter::Height() const {
    return twips(printer_->paperRect(QPrinter::Point).height());
}

Long PaperPrinter::physicalOffsetX() const {
    return static_cast<Long>(std::lround(printer_->pageRect(QPrinter::DevicePixel).left()));
}

Long PaperPrinter::physicalOffsetY() const {
    return static_cast<Long>(std::lround(printer_->pageRect(QPrinter::DevicePixel).top()));
}

double PaperPrinter::ScaleX(Long dots) const {
    return static_cast<double>(dots) * kTwipsPerInch / printer_->logicalDpiX();
}

double PaperPrinter::ScaleY(Long dots) const {
    return static_cast<double>(dots) * kTwipsPerInch / printer_->logicalDpiY();
}

void PaperPrinter::open() {
    if (!printer_->isValid())
        throw RuntimeError(ErrorNumber::Printer);
}

QPainter& PaperPrinter::hDC() {
    if (!painter_.isActive()) {
        if (!painter_.begin(printer_.get()))
            throw RuntimeError(ErrorNumber::Printer);
        painter_.scale(1 / ScaleX(1), 1 / ScaleY(1));
    }
    return painter_;
}

void PaperPrinter::NewPage() {
    if (!printer_->newPage())
        throw RuntimeError(ErrorNumber::Printer);
}

void PaperPrinter::EndDoc() {
    hDC();
    if (!painter_.end() || printer_->printerState() == QPrinter::Error)
        throw RuntimeError(ErrorNumber::Printer);
}

void PaperPrinter::KillDoc() {
    if (!painter_.isActive())
        return;
    printer_->abort();
    painter_.end();
}
