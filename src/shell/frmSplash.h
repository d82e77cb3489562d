// The picture that stands on the screen while the main window loads.
#pragma once

#include "controls/form.h"

// Its picture is the whole window. A key unloads it; it has no timer.
class frmSplash final : public Form {
    Q_OBJECT

  public:
    frmSplash();

  protected:
    void Form_KeyDown(QKeyEvent& key) override;
};
