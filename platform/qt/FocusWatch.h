#pragma once

#include <QPointer>
#include <QQuickItem>

namespace leafund {

// Tells how an item has the focus. Entering and leaving count only when the user does it: not when
// the window becomes active again, nor when a screen comes back, both of which give the focus with
// Qt::ActiveWindowFocusReason. Whoever then types or presses into the item has entered it too.
class FocusWatch : public QObject {
  Q_OBJECT
  Q_PROPERTY(QQuickItem* target READ target WRITE setTarget NOTIFY targetChanged FINAL)
  // The item has the focus by the keyboard or by assistive technology, which must be seen; also
  // when the host gave it, if the keyboard is what the user uses.
  Q_PROPERTY(bool ring READ ring NOTIFY ringChanged FINAL)

 public:
  using QObject::QObject;

  QQuickItem* target() const { return target_; }
  void setTarget(QQuickItem* target);
  bool ring() const { return ring_; }

  // The user has pressed beside the item what stands for it.
  Q_INVOKABLE void enter();
  // The pointer's press is part of an earlier one, which was meant for another screen.
  Q_INVOKABLE bool pressContinues() const;
  // What lay over the screen has been closed by the press, and what continues it presses nothing
  // below.
  Q_INVOKABLE void endPress() const;
  // The editing ended while the window was inactive, so the next input counts as entering again.
  Q_INVOKABLE void leave() { inside_ = false; }

  bool eventFilter(QObject* object, QEvent* event) override;

 signals:
  void targetChanged();
  void ringChanged();
  void entered();
  void left();

 private:
  void focusIn(Qt::FocusReason reason);
  void focusOut(Qt::FocusReason reason);
  void setRing(bool ring);

  QPointer<QQuickItem> target_;
  bool inside_ = false;
  bool byKeyboard_ = false;  // the last way in
  bool ring_ = false;
};

}  // namespace leafund
