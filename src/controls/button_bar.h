// A strip of items of which one is chosen: the tabs of a form.
#pragma once

#include <QIcon>
#include <QWidget>
#include <vector>

// The items form one group, whose number is 1; they count from 1 too. One of them is always chosen
// and stands out, the first at the beginning, also while it is disabled.
//
// Click is fired by the mouse, the blank and the mnemonic, on the chosen item as well, and by the
// arrow keys, which go past items that are disabled. The item is the chosen one then. What code
// chooses fires nothing. An operation that is given an item raises 381 if there is no such one.
class ButtonBar final : public QWidget {
    Q_OBJECT

  public:
    struct Item {
        QString caption;
        QIcon icon;
    };

    explicit ButtonBar(QWidget* parent = nullptr);

    // Replaces the group. Who cannot see the bar is told its caption. The button of item 2 is the
    // child whose name is that of the bar with "_2" behind it.
    void setGroup(const QString& caption, const std::vector<Item>& items);

    int ChosenItem() const { return chosen_; }
    void setChosenItem(int item);

    bool isItemEnabled(int item) const;
    void setItemEnabled(int item, bool enabled);

  Q_SIGNALS:
    void Click(int group, int item);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    class Button;

    Button* addButton(const Item& item);
    Button& button(int item) const;
    void click(int item);
    void step(int by);

    std::vector<Button*> buttons_;
    int chosen_ = 1;
};
