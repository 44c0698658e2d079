#include "platform/qt/QtWindow.h"

#include <QKeyEvent>
#include <QResizeEvent>

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
}

void QtWindow::resizeEvent(QResizeEvent* event) {
  QQuickWindow::resizeEvent(event);
  if (auto* application = UIApplication::current()) {
    application->resize({static_cast<double>(width()), static_cast<double>(height())});
  }
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
