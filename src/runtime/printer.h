// A printer, page by page.
#pragma once

#include "cycles/integers.h"

class QPainter;

// Prints one job at a time. What goes wrong, as far as the system tells, raises 482 (Printer
// error).
//
// Width and height are those of the paper, in twips. The offsets are what cannot be printed at the
// left and at the top, in dots.
class Printer {
  public:
    virtual ~Printer() = default;

    virtual Long Width() const = 0;
    virtual Long Height() const = 0;
    virtual Long physicalOffsetX() const = 0;
    virtual Long physicalOffsetY() const = 0;

    // Dots in twips.
    virtual double ScaleX(Long dots) const = 0;
    virtual double ScaleY(Long dots) const = 0;

    // Begins a job with its first page, unless one has begun.
    virtual void open() = 0;

    // Paints on the page, in twips from the corner of what can be printed. There must be a job.
    virtual QPainter& hDC() = 0;

    virtual void NewPage() = 0;

    // Prints the job.
    virtual void EndDoc() = 0;

    // Drops the job: no page comes out.
    virtual void KillDoc() = 0;
};
