// A box with a text of several lines.
#pragma once

#include <QPlainTextEdit>

// The lines of its text end in CR LF, but for the last, whatever the system. Tab leaves the box.
class MultiLineTextBox final : public QPlainTextEdit {
    Q_OBJECT

  public:
    explicit MultiLineTextBox(QWidget* parent = nullptr);

    QString Text() const;
    void setText(const QString& text) { setPlainText(text); }

    // Adds to the end of the text.
    void append(const QString& text);

    // Whether the user is kept from changing the text. A locked box is in the colour of buttons.
    void setLocked(bool locked);
};
