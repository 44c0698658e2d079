#include "platform/qt/ScenePage.h"

#include <algorithm>

#include "platform/foundation/FatalError.h"
#include "platform/uikit/UITabContainer.h"

namespace leafund {

ScenePage::ScenePage(SceneLoader& loader, UIViewController& controller, QQuickItem* parent)
    : loader_(loader), root_(controller.view()), skin_(loader.skinOf(controller, parent)) {}

ScenePage::~ScenePage() {
  QObject::connect(item(), &QObject::destroyed, skin_.scene, &QObject::deleteLater);
  item()->setVisible(false);
  item()->deleteLater();
}

bool ScenePage::shows(const UIViewController& controller) const {
  const auto root = root_.lock();
  return root && root == controller.viewIfLoaded();
}

void ScenePage::refresh(const UINavigationController& navigation, UIViewController& controller) {
  skin_.scene->readBar(navigation, controller);
  if (const auto tabs = controller.tabContainer()) showTab(*tabs->selectedViewController());
}

void ScenePage::showTab(UIViewController& selected) {
  const bool known = std::any_of(tabs_.begin(), tabs_.end(),
                                 [&](const auto& tab) { return tab->shows(selected); });
  if (!known) {
    auto* place = item()->findChild<QQuickItem*>("tabs");
    if (place == nullptr) fatalError(selected.className(), "there is no place for the tabs");
    tabs_.push_back(std::make_unique<ScenePage>(loader_, selected, place));
  }
  for (const auto& tab : tabs_) {
    tab->item()->setVisible(tab->shows(selected));
  }
}

}  // namespace leafund
