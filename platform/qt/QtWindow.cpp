#include "platform/qt/QtWindow.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QKeyEvent>
#include <QResizeEvent>
#include <algorithm>

#include "platform/uikit/UIApplication.h"

namespace leafund {

namespace {

constexpr QSize kStartSize{390, 844};
constexpr QSize kLeastSize{320, 568};

}  // namespace

QtWindow::QtWindow() {
  setTitle(QStringLiteral("Leafund"));
  setMinimumSize(kLeastSize);
  resize(kStartSize);
  const auto* keyboard = QGuiApplication::inputMethod();
  connect(keyboard, &QInputMethod::keyboardRectangleChanged, this,
          [this, keyboard] { setKeyboardArea(keyboard->keyboardRectangle()); });
}

void QtWindow::setKeyboardArea(const QRectF& area) {
  keyboardArea_ = area;
  fit();
}

// A keyboard that floats covers what the user moves it over, and is none of ours.
void QtWindow::fit() {
  const bool docked = !keyboardArea_.isEmpty() && keyboardArea_.bottom() >= height();
  const double content = docked ? keyboardArea_.top() : height();
  if (auto* application = UIApplication::current()) {
    application->resize({static_cast<double>(width()), std::max(0.0, content)});
  }
}

bool QtWindow::event(QEvent* event) {
  if (event->type() == QEvent::KeyPress) usedByKeys_ = true;
  if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::TouchBegin) {
    usedByKeys_ = false;
  }
  return QQuickWindow::event(event);
}

void QtWindow::resizeEvent(QResizeEvent* event) {
  QQuickWindow::resizeEvent(event);
  fit();
}

void QtWindow::keyPressEvent(QKeyEvent* event) {
  QQuickWindow::keyPressEvent(event);
  // Without an item in focus nobody has refused the event.
  const bool taken = activeFocusItem() != nullptr && event->isAccepted();
  if (taken || (event->key() != Qt::Key_Escape && event->key() != Qt::Key_Back)) return;
  event->accept();
  if (event->isAutoRepeat()) return;  // a key that is held down leaves one screen
  if (auto* application = UIApplication::current()) application->goBack();
}

}  // namespace leafund
