#include "platform/qt/SceneLoader.h"

#include "platform/foundation/FatalError.h"

namespace leafund {

SceneLoader::~SceneLoader() {
  for (const auto& [className, skin] : ahead_) {
    delete skin.item;
    delete skin.scene;
  }
  delete wings_;
}

SceneSkin SceneLoader::skinOf(UIViewController& controller, QQuickItem* parent) {
  const auto waiting = ahead_.extract(controller.className());
  if (!waiting) return make(controller, parent);
  const auto skin = waiting.mapped();
  skin.scene->show(controller);
  skin.item->setParent(parent);
  skin.item->setParentItem(parent);
  return skin;
}

void SceneLoader::makeAhead(const UINavigationController& navigation, UIViewController& draft) {
  if (wings_ == nullptr) wings_ = makeItem("Wings", {}, &glass_);
  draft.view()->setFrame(navigation.rootFrame(draft));  // what does not change is then laid out
  const auto skin = make(draft, wings_);
  skin.scene->readBar(navigation, draft);
  ahead_.emplace(draft.className(), skin);
}

SceneSkin SceneLoader::make(UIViewController& controller, QQuickItem* parent) {
  auto* scene = new SceneObject(controller);
  const QVariantMap properties{{"scene", QVariant::fromValue(scene)}, {"visible", false}};
  auto* item = makeItem(controller.className(), properties, parent);
  item->setObjectName(qtText(controller.className()));
  return {scene, item};
}

QQuickItem* SceneLoader::makeItem(const std::string& fileName, const QVariantMap& properties,
                                  QQuickItem* parent) {
  auto& component = components_[fileName];
  if (!component) {
    const QUrl url("qrc:/Leafund/" + qtText(fileName) + ".qml");
    component = std::make_unique<QQmlComponent>(&engine_, url);
    if (!component->isReady()) fatalError(fileName, component->errorString().toStdString());
  }
  auto* item = qobject_cast<QQuickItem*>(component->createWithInitialProperties(properties));
  if (item == nullptr) fatalError(fileName, component->errorString().toStdString());
  item->setParent(parent);
  item->setParentItem(parent);
  return item;
}

}  // namespace leafund
