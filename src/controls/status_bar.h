// The status bar of three panels.
#pragma once

#include <QStatusBar>

class QLabel;

// Panel 1 holds a text, shortened where it does not fit; its tooltip is a text of its own. Panels 2
// and 3 hold the system's time and date, which they follow by themselves.
class StatusBar final : public QStatusBar {
    Q_OBJECT

  public:
    explicit StatusBar(QWidget* parent = nullptr);

    QString panelText() const;
    void setPanelText(const QString& text);

    QString panelToolTip() const;
    void setPanelToolTip(const QString& text);

    // Shows the present time and date.
    void refreshClock();

  private:
    QLabel* text_;
    QLabel* time_;
    QLabel* date_;
};
