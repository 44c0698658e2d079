#pragma once

#include <QQuickWindow>

namespace leafund {

// The application's window. Its content size and the keys that lead back go to the toolkit.
// A keyboard on the glass that covers the window's lower end makes the content shorter.
class QtWindow : public QQuickWindow {
  Q_OBJECT

 public:
  QtWindow();

  // Whether the user's last touch of the window was a key.
  bool usedByKeys() const { return usedByKeys_; }
  // Where the keyboard on the glass lies, in points of the window; empty where there is none.
  void setKeyboardArea(const QRectF& area);

 protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void fit();

  QRectF keyboardArea_;
  bool usedByKeys_ = false;
};

}  // namespace leafund
