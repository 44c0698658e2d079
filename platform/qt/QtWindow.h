#pragma once

#include <QQuickWindow>

namespace leafund {

// The application's window. Its content size and the keys that lead back go to the toolkit.
class QtWindow : public QQuickWindow {
  Q_OBJECT

 public:
  QtWindow();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace leafund
