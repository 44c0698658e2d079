#include "tests/random/WindowUnderTest.h"

#include <QGuiApplication>
#include <QQuickItem>
#include <QRegularExpression>
#include <QStyleHints>

#include "interface/qml/LeafundWindow.h"
#include "platform/uikit/UINavigationController.h"
#include "platform/uikit/UITabContainer.h"
#include "platform/uikit/UITableView.h"
#include "platform/uikit/UITableViewCell.h"

namespace leafund::random {

namespace {

constexpr double kWidth = 390;
constexpr double kHeight = 844;

QtHost makeHost() {
  static int argc = 1;
  static char name[] = "leafund";
  static char* argv[] = {name, nullptr};
  return QtHost(argc, argv, leafundWindow());
}

const UIView* rootOf(const UIView& view) {
  const auto* root = &view;
  while (root->superview() != nullptr) root = root->superview();
  return root;
}

}  // namespace

WindowHost::WindowHost() : qt_(makeHost()) {
  QGuiApplication::styleHints()->setMousePressAndHoldInterval(kLongPress);
}

int WindowHost::run(UIApplication& application) {
  qt_.start(application);
  return 0;
}

void WindowHost::drain() {
  if (steps_.empty()) return;
  qt_.post([this, steps = std::exchange(steps_, {})] {
    onStep();
    for (const auto& step : steps) step();
  });
}

WindowUnderTest::WindowUnderTest(std::function<void(const Action&)> follow,
                                 std::function<void()> check)
    : WindowUnderTest(std::make_unique<WindowHost>(), std::move(follow), std::move(check)) {}

WindowUnderTest::WindowUnderTest(std::unique_ptr<WindowHost> host,
                                 std::function<void(const Action&)> follow,
                                 std::function<void()> check)
    : AppUnderTest(kWidth, kHeight, std::move(host)),
      host_(static_cast<WindowHost&>(this->host())),
      follow_(std::move(follow)),
      check_(std::move(check)) {
  host_.onStep = [this] { tell({.kind = ActionKind::DrainMainQueue, .number = 1}); };
  listenAtTheWayIn(this);
}

std::size_t WindowUnderTest::close() {
  listenAtTheWayIn(nullptr);
  host_.qt().stop();
  return end();
}

bool WindowUnderTest::arrives(const UserEvent& event) {
  if (losesTaps_ && event.kind == ActionKind::Tap && ++taps_ % 5 == 0) return false;
  tell(asAction(event));
  return true;
}

void WindowUnderTest::hideButton() {
  for (auto* item : page()->findChildren<QQuickItem*>(QRegularExpression("Button$"))) {
    if (!item->objectName().startsWith("back")) item->setVisible(false);
  }
}

void WindowUnderTest::tell(const Action& action) {
  arrived_.push_back(action);
  follow_(action);
}

Action WindowUnderTest::asAction(const UserEvent& event) {
  Action action{.kind = event.kind,
                .text = event.text,
                .width = event.size.width,
                .height = event.size.height,
                .railWidth = event.railWidth,
                .offset = event.offset};
  if (event.kind == ActionKind::Resize || event.kind == ActionKind::GoBack) return action;
  const auto& top = application().navigation()->topViewController();
  // A view that has gone, or is on another screen: one that the reference does not find either.
  action.number = -1;
  action.name = "(elsewhere)";
  if (event.kind == ActionKind::Scroll && event.view != table()) {
    action.kind = ActionKind::TellApplication;  // changes nothing
  }
  if (!event.view || rootOf(*event.view) != top->view().get()) return action;
  const auto child = top->shownChild();
  const auto list = table();
  if (event.kind == ActionKind::Scroll) {
    action.name.clear();
  } else if (event.view == top->view() || (child && event.view == child->view())) {
    action.kind = ActionKind::TapBeside;
    action.name.clear();
  } else if (const auto cell = std::dynamic_pointer_cast<UITableViewCell>(event.view)) {
    action.kind = ActionKind::TapRow;
    action.name.clear();
    if (const auto path = list ? list->indexPathForCell(cell) : std::nullopt) {
      action.number = path->row;
    }
  } else {
    action.name = event.view->name();
  }
  return action;
}

}  // namespace leafund::random
