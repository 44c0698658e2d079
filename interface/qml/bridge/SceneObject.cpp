#include "interface/qml/bridge/SceneObject.h"

#include "platform/display/SceneViews.h"
#include "platform/uikit/UIApplication.h"

namespace leafund {

SceneObject::SceneObject(UIViewController& controller)
    : root_(new ViewObject(controller.view(), this)),
      title_(qtText(controller.navigationItem().title())) {
  readViews(controller);
}

void SceneObject::show(UIViewController& controller) {
  root_->show(controller.view());
  readViews(controller);
}

void SceneObject::readViews(const UIViewController& controller) {
  for (const auto& view : namedViews(controller)) {
    auto& known = views_[qtText(view->name())];
    if (auto* bridge = known.value<ViewObject*>()) {
      bridge->show(view);
    } else {
      known = QVariant::fromValue(new ViewObject(view, this));
    }
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
