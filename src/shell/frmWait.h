// "Please wait": the window that stands in for a form that is slow to load.
#pragma once

#include "controls/form.h"

// A click unloads it.
class frmWait final : public Form {
    Q_OBJECT

  public:
    frmWait();

  protected:
    void mousePressEvent(QMouseEvent* event) override;
};

// Shows the wait window and lets it paint; before a slow form is made.
void showWaitWindow();

// Unloads the wait window, whether it is still there or not; the last act of a slow form's load.
void unloadWaitWindow();
