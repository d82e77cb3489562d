// The window of the help, where the system has no viewer of its own.
#pragma once

#include <QWidget>

class HelpBrowser;
class HelpFolder;
class QToolBar;
class QTreeWidget;

// The contents on the left, a page on the right, and the way back and forward. It begins with the
// first page of the contents. It can be used while a form or a box holds back all other windows,
// and it does not keep the program alive. Esc closes it.
class HelpWindow final : public QWidget {
    Q_OBJECT

  public:
    explicit HelpWindow(const HelpFolder& folder);

    bool hasContents() const;

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void layOut();
    QToolBar* newToolBar();
    void fillContents(const HelpFolder& folder);

    void showChosenPage();
    void choose(const QUrl& part);
    void standOverModalWindow();

    QTreeWidget* contents_;
    HelpBrowser* page_;
};
