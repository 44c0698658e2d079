#include "platform/qt/QtWindow.h"

#include <QGuiApplication>
#include <QIcon>
#include <QInputMethod>
#include <QKeyEvent>
#include <QPixmapCache>
#include <QPointingDevice>
#include <QResizeEvent>
#include <QScreen>
#include <QStyleHints>
#include <algorithm>
#include <utility>

#include "platform/qt/Fingers.h"
#include "platform/uikit/UIApplication.h"
#include "platform/uikit/UINavigationController.h"

namespace leafund {

namespace {

// How far apart the two touches of a double tap may lie, in points: half the minimum height of a
// control. Qt's own limit is smaller than fingers scatter.
constexpr int kFingertip = 24;

// Only to be compared, never dereferenced.
const void* topScreen() {
  const auto* application = UIApplication::current();
  if (application == nullptr || application->navigation() == nullptr) return nullptr;
  return application->navigation()->topViewController().get();
}

bool leadsBack(const QKeyEvent& key) {
  return key.key() == Qt::Key_Escape || key.key() == Qt::Key_Back ||
         (key.key() == Qt::Key_Left && key.modifiers() == Qt::AltModifier);
}

bool isCtrlTab(const QKeyEvent& key) {
  return (key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab) &&
         key.modifiers().testFlag(Qt::ControlModifier);
}

bool presses(const QKeyEvent& key) {
  return leadsBack(key) || key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter ||
         key.key() == Qt::Key_Space;
}

void goBack() {
  if (auto* application = UIApplication::current()) application->goBack();
}

// Qt Quick takes a finger's second touch for a double click, and drops it where no item asks for
// those, as none does. While this lives it sees two touches.
class WithoutDoubleTaps {
 public:
  WithoutDoubleTaps() { hints().setMouseDoubleClickInterval(0); }
  WithoutDoubleTaps(const WithoutDoubleTaps&) = delete;
  WithoutDoubleTaps& operator=(const WithoutDoubleTaps&) = delete;
  ~WithoutDoubleTaps() { hints().setMouseDoubleClickInterval(interval_); }

 private:
  static QStyleHints& hints() { return *QGuiApplication::styleHints(); }
  const int interval_ = hints().mouseDoubleClickInterval();
};

}  // namespace

QtWindow::QtWindow(const WindowSettings& settings) {
  // Qt would keep the icon's pixmaps, and wake up half a minute later to let them go.
  QPixmapCache::setCacheLimit(0);
  setTitle(settings.title);
  // No minimum size: a maximised or fullscreen state may be smaller than any, and a window larger
  // than its state is an error that ends a Wayland connection.
  resize(settings.startSize.boundedTo(screen()->availableSize()));
  // After the first frame, which would wait for it longer than a millisecond. Where the app is
  // installed desktops find the icon by its name, too.
  connect(
      this, &QQuickWindow::frameSwapped, this,
      [this, icon = settings.icon] { setIcon(QIcon(icon)); },
      static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
  const auto* keyboard = QGuiApplication::inputMethod();
  connect(keyboard, &QInputMethod::keyboardRectangleChanged, this,
          [this, keyboard] { setKeyboardArea(keyboard->keyboardRectangle()); });
}

void QtWindow::setKeyboardArea(const QRectF& area) {
  keyboardArea_ = area;
  fit();
}

void QtWindow::setPageMaker(const PageMaker& pages) {
  pages_ = &pages;
  fit();
}

// Ignore floating keyboards: the user puts them where they are not in the way.
void QtWindow::fit() {
  const bool docked = !keyboardArea_.isEmpty() && keyboardArea_.bottom() >= height();
  const double content = docked ? keyboardArea_.top() : height();
  if (auto* application = UIApplication::current()) {
    application->resize({static_cast<double>(width()), std::max(0.0, content)},
                        pages_ == nullptr ? 0 : pages_->railWidth());
  }
}

bool QtWindow::event(QEvent* event) {
  if (!event->isInputEvent()) return QQuickWindow::event(event);
  const auto* before = topScreen();
  const bool taken = takePress(*event) || deliver(event);
  const bool byKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
  if (topScreen() != before) (byKey ? keys_ : pointer_).changedTop();
  return taken;
}

bool QtWindow::deliver(QEvent* event) {
  switch (event->type()) {
    case QEvent::TouchCancel:
      return cancel(static_cast<QTouchEvent&>(*event));
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
      return touch(static_cast<QTouchEvent&>(*event));
    default:
      return QQuickWindow::event(event);
  }
}

bool QtWindow::touch(QTouchEvent& event) {
  for (const auto& point : event.points()) {
    if (point.state() == QEventPoint::Released) fingers_.removeAll(point.id());
  }
  const auto pressed = pressedPoints(event);
  if (pressed.isEmpty()) return QQuickWindow::event(&event);
  const bool joins = joinsRestingFingers(event);
  if (joins) {
    QTouchEvent cancelled(QEvent::TouchCancel, event.pointingDevice());
    cancel(cancelled);
  }
  for (const auto& point : pressed) fingers_.append(point.id());
  const WithoutDoubleTaps every;
  if (!joins) return QQuickWindow::event(&event);
  // Qt Quick lets one finger at a time do what a pointer does, and controls hear of no other. What
  // scrolls would take the resting ones anew, and the event with them.
  QTouchEvent joining(QEvent::TouchBegin, event.pointingDevice(), event.modifiers(), pressed);
  joining.setTimestamp(event.timestamp());
  const bool taken = QQuickWindow::event(&joining);
  event.setAccepted(joining.isAccepted());
  return taken;
}

// What waits for a tap or a long press is told nothing of a cancel by Qt: it would wait on, and
// take the next tap for the rest of this one. It gives up where a finger is lifted elsewhere.
bool QtWindow::cancel(QTouchEvent& event) {
  for (const int finger : std::exchange(fingers_, {})) {
    QTouchEvent lifted(QEvent::TouchEnd, event.pointingDevice(), {},
                       {QEventPoint(finger, QEventPoint::Released, {}, {})});
    const auto& point = lifted.points().first();
    const auto* holder = lifted.exclusiveGrabber(point);
    if (holder != nullptr && holder->inherits("QQuickDragHandler")) continue;
    lifted.setExclusiveGrabber(point, nullptr);
    QQuickWindow::event(&lifted);
  }
  return QQuickWindow::event(&event);
}

// Answers whether the event has come to its end here.
bool QtWindow::takePress(QEvent& event) {
  switch (event.type()) {
    case QEvent::KeyPress:
      return takeKey(static_cast<QKeyEvent&>(event));
    case QEvent::KeyRelease:
      keys_.released(static_cast<QKeyEvent&>(event).timestamp());
      return false;
    case QEvent::MouseButtonPress:
      notePointer(static_cast<QPointerEvent&>(event), static_cast<QMouseEvent&>(event).button());
      if (static_cast<QMouseEvent&>(event).button() != Qt::BackButton) return false;
      if (!pressContinues_) goBack();
      return true;
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::MouseButtonRelease:
      // Also a finger that comes to others.
      if (!pressedPoints(static_cast<QPointerEvent&>(event)).isEmpty()) {
        notePointer(static_cast<QPointerEvent&>(event), 0);
      }
      if (pressContinues_) cancelTap(static_cast<QPointerEvent&>(event), pressPoint_);
      return false;
    default:
      return false;
  }
}

bool QtWindow::takeKey(QKeyEvent& key) {
  // Inputs take Tab for themselves, whatever is held with it.
  if (isCtrlTab(key)) {
    const auto modifiers = key.key() == Qt::Key_Backtab ? Qt::ShiftModifier : key.modifiers();
    QKeyEvent pane(QEvent::KeyPress, Qt::Key_F6, modifiers & Qt::ShiftModifier);
    pane.setTimestamp(key.timestamp());
    QQuickWindow::event(&pane);
    return true;
  }
  usedByKeys_ = true;
  const Press press{nullptr, key.key(), key.timestamp(), {}, 0, key.isAutoRepeat()};
  const int interval = QGuiApplication::styleHints()->mouseDoubleClickInterval();
  return keys_.continues(press, interval) && presses(key);
}

void QtWindow::notePointer(const QPointerEvent& event, int button) {
  usedByKeys_ = false;
  const auto* hints = QGuiApplication::styleHints();
  const bool byMouse = event.type() == QEvent::MouseButtonPress;
  const int reach = byMouse ? hints->mouseDoubleClickDistance()
                            : std::max(hints->touchDoubleTapDistance(), kFingertip);
  const auto pressed = pressedPoints(event);
  const auto& point = pressed.isEmpty() ? event.points().first() : pressed.first();
  const Press press{event.pointingDevice(),     button, event.timestamp(), point.position(),
                    static_cast<double>(reach), false};
  // What another button does meanwhile makes no press of its own of one that is held.
  const bool isHeld =
      byMouse && static_cast<const QMouseEvent&>(event).buttons() != Qt::MouseButton(button);
  const bool continued = isHeld && pressContinues_;
  pressContinues_ = pointer_.continues(press, hints->mouseDoubleClickInterval()) || continued;
  pressPoint_ = point.id();
}

void QtWindow::resizeEvent(QResizeEvent* event) {
  QQuickWindow::resizeEvent(event);
  fit();
}

void QtWindow::keyPressEvent(QKeyEvent* event) {
  QQuickWindow::keyPressEvent(event);
  // Without an item in focus nobody has refused the event.
  if (activeFocusItem() != nullptr && event->isAccepted()) return;
  const bool quits = event->key() == Qt::Key_Q && event->modifiers() == Qt::ControlModifier;
  event->setAccepted(quits || leadsBack(*event));
  if (quits) {
    close();
  } else if (leadsBack(*event) && !event->isAutoRepeat()) {  // a held key leaves one screen
    goBack();
  }
}

}  // namespace leafund
