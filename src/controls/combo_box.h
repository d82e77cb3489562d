// A list that opens below its selected entry.
#pragma once

#include <QComboBox>

#include "controls/list_control.h"

// The user's choice fires Click once, also where it is the entry that was selected already. While
// the list is locked, the user cannot choose: it does not open, and keys are left to the form.
class ComboBox final : public QComboBox, public ListControl {
    Q_OBJECT

  public:
    explicit ComboBox(QWidget* parent = nullptr);

    using ListControl::setItemData;

    bool isLocked() const { return locked_; }
    void setLocked(bool locked) { locked_ = locked; }

    void showPopup() override;

  Q_SIGNALS:
    void Click();

  protected:
    void showListIndex(int index) override { setCurrentIndex(index); }
    void fireClick() override { Q_EMIT Click(); }
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    bool locked_ = false;
};
