// The window that every form of Ondara is.
#pragma once

#include <QWidget>
#include <functional>
#include <vector>

class QKeyEvent;
class QPushButton;

// A form is loaded before it is shown and unloaded when it closes, however it closes. Keys reach
// Form_KeyDown before the control that has the focus. Esc closes nothing by itself, and Enter
// presses nothing but a button that has the focus, or else the form's default button if there is
// one. A button that is pressed takes the focus first, so that whichever control had it has heard
// that it lost it.
//
// Work of many steps may yield between them, so that the window stays alive. A window that is
// closed then is unloaded when the work has ended, which Form_Cancel asks it to do.
//
// Whoever makes a form owns it: a command makes one on the stack, shows it modally, and it is freed
// on return. A run-time error in Form_Load or Form_Unload goes to whoever loads or unloads.
class Form : public QWidget {
    Q_OBJECT

  public:
    explicit Form(QWidget* owner = nullptr);
    ~Form() override;

    // Runs Form_Load, unless the form is loaded already. The window stays hidden.
    void Load();

    // Loads and shows the form; the caller goes on at once.
    void Show();

    // Loads the form, shows it over its owner, whose events it holds back, and returns when it has
    // been unloaded.
    void ShowModal();

    // Paints the form before what comes next.
    void Refresh();

    // Runs Form_Unload and closes the window, unless the form is not loaded.
    void Unload();

    bool isLoaded() const { return loaded_; }

    // The forms that are loaded, in the order of their loading.
    static const std::vector<Form*>& forms();

  Q_SIGNALS:
    void unloaded();

  protected:
    virtual void Form_Load() {}
    virtual void Form_Unload() {}

    // A key pressed anywhere in the form. It goes on to the control unless it is accepted here.
    virtual void Form_KeyDown(QKeyEvent&) {}

    // The window was closed during work, which is to end as soon as it can.
    virtual void Form_Cancel() {}

    // Makes Enter press a button, wherever the focus is but on another button.
    void setDefaultButton(QPushButton& button);

    // Does work that yields. There must be no other work going. An error of the steps goes to the
    // caller, and the form is not unloaded then.
    void work(const std::function<void()>& steps);
    bool isAtWork() const { return atWork_; }

    // Whether the form is to be unloaded after the work.
    bool isClosing() const { return closing_; }

    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    bool seesFirst(QObject* receiver) const;
    void pressDefaultButton(QKeyEvent& key);
    void closeAfterWork();

    QPushButton* defaultButton_ = nullptr;  // a child, or none
    bool loaded_ = false;
    bool atWork_ = false;
    bool closing_ = false;
};

// Whether the key is Esc, for Form_KeyDown. It is used up then.
bool takeEsc(QKeyEvent& key);
