#include "platform/qt/FocusWatch.h"

#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <utility>

#include "platform/qt/QtWindow.h"

namespace leafund {

namespace {

bool writes(const QKeyEvent& key) {
  if (key.key() == Qt::Key_Backspace || key.key() == Qt::Key_Delete) return true;
  return !key.text().isEmpty() && key.text().front().isPrint();
}

bool writes(const QInputMethodEvent& composition) {
  return !composition.preeditString().isEmpty() || !composition.commitString().isEmpty();
}

}  // namespace

void FocusWatch::setTarget(QQuickItem* target) {
  if (target == target_) return;
  if (target_) target_->removeEventFilter(this);
  target_ = target;
  if (target_) target_->installEventFilter(this);
  emit targetChanged();
}

bool FocusWatch::pressContinues() const {
  const auto* window = target_ ? qobject_cast<QtWindow*>(target_->window()) : nullptr;
  return window != nullptr && window->pressContinues();
}

void FocusWatch::endPress() const {
  if (auto* window = target_ ? qobject_cast<QtWindow*>(target_->window()) : nullptr) {
    window->endPress();
  }
}

bool FocusWatch::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::FocusIn:
      focusIn(static_cast<QFocusEvent*>(event)->reason());
      break;
    case QEvent::FocusOut:
      focusOut(static_cast<QFocusEvent*>(event)->reason());
      break;
    case QEvent::MouseButtonPress:
    case QEvent::TouchBegin:
      if (target_->hasActiveFocus() && !pressContinues()) enter();
      break;
    case QEvent::KeyPress:
      if (writes(*static_cast<QKeyEvent*>(event))) enter();
      break;
    case QEvent::InputMethod:
      if (writes(*static_cast<QInputMethodEvent*>(event))) enter();
      break;
    default:
      break;
  }
  return false;
}

void FocusWatch::focusIn(Qt::FocusReason reason) {
  const auto* window = qobject_cast<QtWindow*>(target_->window());
  const bool keysUsed = window != nullptr && window->usedByKeys();
  if (reason == Qt::ActiveWindowFocusReason) {
    byKeyboard_ = byKeyboard_ || keysUsed;
  } else {
    byKeyboard_ = reason == Qt::PopupFocusReason ? keysUsed : reason != Qt::MouseFocusReason;
    enter();
  }
  setRing(byKeyboard_);
}

void FocusWatch::focusOut(Qt::FocusReason reason) {
  setRing(false);
  // The user is still in it when the window is only put aside for a moment.
  if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason) return;
  if (!std::exchange(inside_, false)) return;
  emit left();
}

void FocusWatch::enter() {
  if (std::exchange(inside_, true)) return;
  emit entered();
}

void FocusWatch::setRing(bool ring) {
  if (std::exchange(ring_, ring) != ring) emit ringChanged();
}

}  // namespace leafund
