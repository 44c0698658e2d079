#include "platform/qt/SceneObject.h"

#include <algorithm>

#include "platform/uikit/UIApplication.h"
#include "platform/uikit/UITableView.h"

namespace leafund {

namespace {

bool isRootOfChild(const UIView& view, const UIViewController& controller) {
  const auto& children = controller.childViewControllers();
  return std::any_of(children.begin(), children.end(),
                     [&](const auto& child) { return child->viewIfLoaded().get() == &view; });
}

}  // namespace

SceneObject::SceneObject(UIViewController& controller)
    : root_(new ViewObject(controller.view(), this)),
      title_(qtText(controller.navigationItem().title())) {
  readViews(*controller.view(), controller);
}

void SceneObject::show(UIViewController& controller) {
  root_->show(controller.view());
  readViews(*controller.view(), controller);
}

// Neither into a table, whose rows come and go, nor into another screen's views.
void SceneObject::readViews(const UIView& parent, const UIViewController& controller) {
  if (dynamic_cast<const UITableView*>(&parent) != nullptr) return;
  for (const auto& view : parent.subviews()) {
    if (isRootOfChild(*view, controller)) continue;
    if (!view->name().empty()) readView(view);
    readViews(*view, controller);
  }
}

void SceneObject::readView(const std::shared_ptr<UIView>& view) {
  auto& known = views_[qtText(view->name())];
  if (auto* bridge = known.value<ViewObject*>()) {
    bridge->show(view);
  } else {
    known = QVariant::fromValue(new ViewObject(view, this));
  }
}

void SceneObject::readBar(const UINavigationController& navigation,
                          const UIViewController& controller) {
  title_ = qtText(navigation.barTitle(controller));
  barShown_ = navigation.showsBar(controller);
  canGoBack_ = navigation.canGoBack(controller);
  emit changed();
}

void SceneObject::goBack() {
  if (auto* application = UIApplication::current()) application->goBack();
}

}  // namespace leafund
