#pragma once

#include <QQuickWindow>

#include "platform/qt/PressSeries.h"
#include "platform/qt/WindowSettings.h"

namespace leafund {

// The application's window. Its content size and whatever leads back go to the toolkit: Escape, the
// back keys, Alt with Left, and a pointer's back button. Ctrl+Q closes it. Ctrl+Tab is told as F6.
//
// Presses that are part of one which changed the top screen come to nothing (PressSeries): a key is
// dropped; a pointer may still scroll or drag, but taps nothing.
// A keyboard in the window that covers the window's lower end makes the content shorter.
class QtWindow : public QQuickWindow {
  Q_OBJECT

 public:
  explicit QtWindow(const WindowSettings& settings);

  // Whether the user's last touch of the window was a key.
  bool usedByKeys() const { return usedByKeys_; }
  // The pointer's present press is part of an earlier one, and taps nothing.
  bool pressContinues() const { return pressContinues_; }
  // What the last press was for has gone, though the screen has not: what continues it presses
  // nothing.
  void endPress() { (usedByKeys_ ? keys_ : pointer_).changedTop(); }
  // Where the keyboard in the window lies, in points of the window; empty where there is none.
  void setKeyboardArea(const QRectF& area);
  // Who makes its pages is asked how wide the tabs' rail is, for as long as the window gets events.
  void setPageMaker(const PageMaker& pages);

 protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void fit();
  bool deliver(QEvent* event);
  bool touch(QTouchEvent& event);
  bool cancel(QTouchEvent& event);
  bool takePress(QEvent& event);
  bool takeKey(QKeyEvent& key);
  void notePointer(const QPointerEvent& event, int button);

  const PageMaker* pages_ = nullptr;
  QRectF keyboardArea_;
  bool usedByKeys_ = false;
  PressSeries keys_;
  PressSeries pointer_;
  bool pressContinues_ = false;
  // By the event: the finger that pressed last, and those on the screen.
  int pressPoint_ = 0;
  QList<int> fingers_;
};

}  // namespace leafund
