// The drop-down menu of a toolbar's button.
#pragma once

#include <QMenu>
#include <QString>
#include <vector>

class QToolBar;
class QToolButton;

// Entries with a key and a text, counted from 1; the text "-" is a separator. A click on an entry
// fires ButtonMenuClick with its number. What Qt needs to show an entry is made when the menu
// opens, so thousands of entries cost little until then.
class ButtonMenu final : public QMenu {
    Q_OBJECT

  public:
    explicit ButtonMenu(QWidget* parent = nullptr);

    // Drops down from the button of a toolbar when that is pressed. Returns the button.
    QToolButton& dropFrom(const QToolBar& bar, QAction& button);

    int Count() const { return static_cast<int>(entries_.size()); }

    // These raise 35600 if there is no such entry.
    QString Key(int index) const { return entry(index).key; }
    QString Text(int index) const { return entry(index).text; }
    void Remove(int index);

    void Add(const QString& key, const QString& text);
    void Clear();

  Q_SIGNALS:
    void ButtonMenuClick(int index);

  private:
    struct Entry {
        QString key;
        QString text;
    };

    const Entry& entry(int index) const;
    void showEntries();

    std::vector<Entry> entries_;
    bool changed_ = false;  // since they were shown
};
