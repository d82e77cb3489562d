// The window that every form of Ondara is.
#pragma once

#include <QWidget>
#include <vector>

class QKeyEvent;

// A form is loaded before it is shown, and unloaded when it closes, however it closes. Its three
// event routines run inside the event boundary. Keys reach Form_KeyDown before the control that has
// the focus. Esc closes nothing by itself, and Enter presses nothing but what has the focus.
//
// Whoever makes a form owns it: a command makes one on the stack, shows it modally, and it is freed
// on return.
class Form : public QWidget {
    Q_OBJECT

  public:
    explicit Form(QWidget* owner = nullptr);
    ~Form() override;

    // Runs Form_Load, unless the form is loaded already. The window stays hidden.
    void load();

    // Loads and shows the form; the caller goes on at once.
    void show();

    // Loads the form, shows it over its owner, whose events it holds back, and returns when it has
    // been unloaded.
    void showModal();

    // Paints the form now, before what comes next.
    void refresh();

    // Runs Form_Unload, once, and closes the window.
    void unload();

    bool isLoaded() const { return loaded_; }

    // The forms that are loaded, in the order of their loading.
    static const std::vector<Form*>& forms();

  Q_SIGNALS:
    void unloaded();

  protected:
    virtual void Form_Load() {}
    virtual void Form_Unload() {}

    // A key pressed anywhere in the form; the key goes on to the control unless it is accepted.
    virtual void Form_KeyDown(QKeyEvent& key);

    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    bool loaded_ = false;
};
