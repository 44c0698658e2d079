#include "platform/qt/ScenePage.h"

#include <algorithm>

#include "platform/foundation/FatalError.h"
#include "platform/uikit/UITabContainer.h"

namespace leafund {

QQuickItem* SceneLoader::makeItem(const std::string& className, SceneObject& scene,
                                  QQuickItem* parent) {
  auto& component = components_[className];
  if (!component) {
    const QUrl url("qrc:/Leafund/" + qtText(className) + ".qml");
    component = std::make_unique<QQmlComponent>(&engine_, url);
    if (!component->isReady()) fatalError(className, component->errorString().toStdString());
  }
  QVariantMap properties;
  properties.insert("scene", QVariant::fromValue(&scene));
  auto* item = qobject_cast<QQuickItem*>(component->createWithInitialProperties(properties));
  if (item == nullptr) fatalError(className, component->errorString().toStdString());
  item->setObjectName(qtText(className));
  item->setParent(parent);
  item->setParentItem(parent);
  return item;
}

ScenePage::ScenePage(SceneLoader& loader, UIViewController& controller, QQuickItem* parent)
    : loader_(loader),
      root_(controller.view()),
      scene_(new SceneObject(controller)),
      item_(loader.makeItem(controller.className(), *scene_, parent)) {}

ScenePage::~ScenePage() {
  QObject::connect(item_, &QObject::destroyed, scene_, &QObject::deleteLater);
  item_->setVisible(false);
  item_->deleteLater();
}

bool ScenePage::shows(const UIViewController& controller) const {
  const auto root = root_.lock();
  return root && root == controller.viewIfLoaded();
}

void ScenePage::refresh(const UINavigationController& navigation, UIViewController& controller) {
  scene_->readBar(navigation, controller);
  if (const auto tabs = controller.tabContainer()) showTab(*tabs->selectedViewController());
}

void ScenePage::showTab(UIViewController& selected) {
  const bool known = std::any_of(tabs_.begin(), tabs_.end(),
                                 [&](const auto& tab) { return tab->shows(selected); });
  if (!known) {
    auto* place = item_->findChild<QQuickItem*>("tabs");
    if (place == nullptr) fatalError(selected.className(), "there is no place for the tabs");
    tabs_.push_back(std::make_unique<ScenePage>(loader_, selected, place));
  }
  for (const auto& tab : tabs_) {
    const bool shown = tab->shows(selected);
    tab->item()->setVisible(shown);
    // The keyboard begins in what the screen is about, and stays where the user takes it.
    if (shown && item_->scopedFocusItem() == nullptr) tab->item()->setFocus(true);
  }
}

}  // namespace leafund
