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
  addViews(*controller.view(), controller);
}

// Neither into a table, whose rows come and go, nor into another screen's views.
void SceneObject::addViews(const UIView& parent, const UIViewController& controller) {
  if (dynamic_cast<const UITableView*>(&parent) != nullptr) return;
  for (const auto& view : parent.subviews()) {
    if (isRootOfChild(*view, controller)) continue;
    if (!view->name().empty()) {
      views_.insert(qtText(view->name()), QVariant::fromValue(new ViewObject(view, this)));
    }
    addViews(*view, controller);
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
