#pragma once

#include <QImage>
#include <QQuickItem>
#include <functional>
#include <memory>
#include <string>

#include "platform/qt/QtHost.h"
#include "platform/qt/QtWindow.h"
#include "platform/uikit/UIApplication.h"
#include "platform/uikit/UITableView.h"
#include "shell/Storyboard.h"

namespace leafund {

// The application in its window, 390 by 844 points, driven from within the process.
class WindowBench {
 public:
  explicit WindowBench(const UIStoryboard& storyboard = mainStoryboard());
  ~WindowBench();

  // Through the landing screen to the browse list.
  void signIn();
  void type(const std::string& name, const std::string& text);
  // Draws now what is to be drawn, from the polishing of the items to what the window shows.
  void frame();
  void waitUntil(const std::function<bool()>& done);
  // Until nothing slides.
  void settle();
  // As long as a user at least looks at a screen before the next tap.
  void rest();

  // The topmost screen, and an item on it; fatal where there is none.
  QQuickItem& page();
  QQuickItem& item(const std::string& name);
  QQuickItem& list() { return item("table"); }
  void scrollTo(double offset) { list().setProperty("contentY", offset); }
  std::shared_ptr<UITableView> table();
  std::shared_ptr<UIView> view(const std::string& name);
  QImage picture() { return window().grabWindow(); }

  QtWindow& window() { return *host.window(); }

  QtHost host;
  std::shared_ptr<UIApplication> application;
};

}  // namespace leafund
