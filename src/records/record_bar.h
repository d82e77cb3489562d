// The buttons of a record editor: the arrows with the status between them, and what can be done
// with the row.
#pragma once

#include <QWidget>
#include <memory>

namespace Ui {
class RecordBar;
}

// Offers Add, Edit, Delete and Close while the rows are browsed, Update and Cancel while one is
// edited. When it is drawn, the rows are browsed. It knows no row.
class RecordBar final : public QWidget {
    Q_OBJECT

  public:
    explicit RecordBar(QWidget* parent = nullptr);
    ~RecordBar() override;

    const Ui::RecordBar& controls() const { return *ui_; }

    void SetButtons(bool browsing);

  private:
    std::unique_ptr<Ui::RecordBar> ui_;
};
