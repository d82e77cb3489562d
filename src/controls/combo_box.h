// A list that opens below its selected entry.
#pragma once

#include <QComboBox>

#include "controls/list_control.h"

// The user's choice fires Click once, also where it is the entry that was selected already.
class ComboBox final : public QComboBox, public ListControl {
    Q_OBJECT

  public:
    explicit ComboBox(QWidget* parent = nullptr);

    using ListControl::setItemData;

  Q_SIGNALS:
    void Click();

  protected:
    void showListIndex(int index) override { setCurrentIndex(index); }
    void fireClick() override { Q_EMIT Click(); }
};
