#include "bench/WindowBench.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <chrono>

#include "bench/Campaigns.h"
#include "interface/qml/LeafundWindow.h"
#include "platform/uikit/UINavigationController.h"
#include "platform/uikit/UITabContainer.h"
#include "shell/AppDelegate.h"

namespace leafund {

namespace {

QtHost makeHost() {
  static int argc = 1;
  static char name[] = "leafund";
  static char* argv[] = {name, nullptr};
  return QtHost(argc, argv, leafundWindow());
}

std::shared_ptr<UIView> descendant(const UIView& root, const std::string& name) {
  for (const auto& view : root.subviews()) {
    if (view->name() == name) return view;
    if (auto found = descendant(*view, name)) return found;
  }
  return nullptr;
}

}  // namespace

WindowBench::WindowBench(const UIStoryboard& storyboard)
    : host(makeHost()),
      application(
          std::make_shared<UIApplication>(host, storyboard, std::make_shared<AppDelegate>())) {
  setCurrentHost(&host);
  host.start(*application);
  window().resize(390, 844);  // whatever the screen of the surroundings has room for
  waitUntil([&] { return window().isExposed(); });
}

WindowBench::~WindowBench() {
  host.stop();
  application.reset();
  setCurrentHost(nullptr);
}

void WindowBench::signIn() {
  type("userEmail", "wren");
  type("password", "wren");
  application->tap(view("signInButton"));
  settle();
  demand(page().objectName() == "TabBarVC", "the home screen is shown");
}

void WindowBench::type(const std::string& name, const std::string& text) {
  const auto input = std::dynamic_pointer_cast<UITextInput>(view(name));
  application->beginEditing(input);
  application->edit(input, text);
}

void WindowBench::frame() {
  QEvent request(QEvent::UpdateRequest);
  QCoreApplication::sendEvent(&window(), &request);
}

void WindowBench::waitUntil(const std::function<bool()>& done) {
  const auto patience = std::chrono::steady_clock::now() + std::chrono::seconds(30);
  QTimer heartbeat;  // Wakes it where nothing else does.
  heartbeat.start(20);
  while (!done()) {
    // Without a time limit, which would be used up even when it is done before.
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    demand(std::chrono::steady_clock::now() < patience, "what was waited for came to be");
  }
}

void WindowBench::settle() {
  waitUntil([&] {
    int visible = 0;
    for (const auto* each : window().contentItem()->childItems()) visible += each->isVisible();
    return visible == 1 && page().x() == 0;
  });
  frame();
}

void WindowBench::rest() {
  settle();
  const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(300);
  waitUntil([&] { return std::chrono::steady_clock::now() > end; });
  frame();
}

QQuickItem& WindowBench::page() {
  const auto& screen = *application->navigation()->topViewController();
  const auto name = QString::fromStdString(screen.className());
  for (auto* each : window().contentItem()->childItems()) {
    if (each->objectName() == name && each->isVisible() && each->isEnabled()) return *each;
  }
  demand(false, "the topmost screen is in the window");
  std::abort();
}

QQuickItem& WindowBench::item(const std::string& name) {
  for (auto* each : page().findChildren<QQuickItem*>(QString::fromStdString(name))) {
    if (each->isVisible()) return *each;
  }
  demand(false, name);
  std::abort();
}

std::shared_ptr<UITableView> WindowBench::table() {
  const auto child = application->navigation()->topViewController()->shownChild();
  return std::dynamic_pointer_cast<UITableView>(child->view());
}

std::shared_ptr<UIView> WindowBench::view(const std::string& name) {
  auto found = descendant(*application->navigation()->topViewController()->view(), name);
  demand(found != nullptr, name);
  return found;
}

}  // namespace leafund
