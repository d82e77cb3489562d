// A desktop with light letters on dark.
#pragma once

#include <QApplication>
#include <QPalette>

// The application's palette is dark for as long as this lives.
class DarkDesktop {
  public:
    DarkDesktop() {
        QPalette dark;
        dark.setColor(QPalette::Base, Qt::black);
        dark.setColor(QPalette::Text, Qt::white);
        QApplication::setPalette(dark);
    }
    ~DarkDesktop() { QApplication::setPalette(before_); }
    Q_DISABLE_COPY_MOVE(DarkDesktop)

  private:
    QPalette before_ = QApplication::palette();
};
