#pragma once

#include <QQuickItem>
#include <functional>
#include <memory>
#include <string>

#include "platform/qt/QtHost.h"
#include "platform/qt/QtWindow.h"
#include "platform/uikit/UIApplication.h"
#include "platform/uikit/UINavigationController.h"
#include "shell/AppDelegate.h"
#include "shell/Storyboard.h"
#include "tests/support/PictureServer.h"

namespace leafund {

// A handler of Qt's messages: a warning fails the test, unless it is one of the surroundings.
void failOnWarning(QtMsgType type, const QMessageLogContext& context, const QString& message);

// The whole application in its real window, with the project's pictures on a real server. Every
// warning of the interface fails the test.
class WindowApplication {
 public:
  explicit WindowApplication(const UIStoryboard& storyboard = mainStoryboard());
  ~WindowApplication();

  QtHost host;
  std::shared_ptr<UIApplication> application;

  PictureServer& server() { return *server_; }

  QtWindow& window() { return *host.window(); }
  UINavigationController& navigation() { return *application->navigation(); }
  // The topmost screen, or the selected tab's when it holds tabs.
  std::shared_ptr<UIViewController> shown();

  // Serves events until it is so; false after a generous time.
  bool waitUntil(const std::function<bool()>& done);
  // Until no slide is under way and what changed has been drawn.
  void settle();

  // The item of the topmost screen, and an item on it by its name; null where there is none.
  QQuickItem* page();
  QQuickItem* item(const std::string& name);
  // Fails the test where there is none.
  QQuickItem& require(const std::string& name);
  // The part of the window in which an item can be seen: that of the page which scrolls it.
  QRectF paneOf(const QQuickItem& item);

  // With the pointer, in the item's middle, which is first scrolled into sight.
  void click(QQuickItem& item);
  void typeKeys(const std::string& text);
  // A press of its own, however fast the test goes.
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {});

 private:
  void servePictures();

  std::unique_ptr<PictureServer> server_;
  quint64 pressedAt_ = 0;  // milliseconds, by the events
};

}  // namespace leafund
