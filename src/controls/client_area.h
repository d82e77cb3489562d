// The inside of a window whose controls have places of their own.
#pragma once

#include <QWidget>

class ClientArea final : public QWidget {
    Q_OBJECT

  public:
    using QWidget::QWidget;

  Q_SIGNALS:
    // It has another size, or its first.
    void Resize();

  protected:
    void resizeEvent(QResizeEvent*) override { Q_EMIT Resize(); }
};
