#include "interface/qml/SceneLoader.h"

#include <algorithm>
#include <iterator>

#include "interface/qml/ScenePage.h"
#include "interface/qml/access/ItemAccess.h"
#include "platform/foundation/FatalError.h"
#include "platform/uikit/UIApplication.h"
#include "platform/uikit/UIStoryboard.h"

// The interface's types and its compiled files stand in a static library, and without being named
// here they would not be linked in. The resources themselves are linked as they are.
extern void qml_register_types_Leafund();
static void linkInterface() {
  qml_register_types_Leafund();
  Q_INIT_RESOURCE(qmlcache_leafund_qml);
}

namespace leafund {

SceneLoader::SceneLoader(QQuickItem& content) : content_(content) {
  linkInterface();
  describeItemsToAssistiveTechnology();
}

SceneLoader::~SceneLoader() {
  for (const auto& [className, skin] : ahead_) {
    delete skin.item;
    delete skin.scene;
  }
  delete wings_;
}

std::unique_ptr<Page> SceneLoader::make(UIViewController& controller, QQuickItem& parent) {
  return std::make_unique<ScenePage>(*this, controller, &parent);
}

SceneSkin SceneLoader::skinOf(UIViewController& controller, QQuickItem* parent) {
  const auto waiting = ahead_.extract(controller.className());
  if (!waiting) return makeSkin(controller, parent);
  const auto skin = waiting.mapped();
  skin.scene->show(controller);
  skin.item->setParent(parent);
  skin.item->setParentItem(parent);
  return skin;
}

void SceneLoader::lookAhead(const UINavigationController& navigation) {
  const auto& top = navigation.topViewController();
  const auto* storyboard = top->storyboard();
  if (storyboard == nullptr) return;
  auto next = storyboard->scenesAfter(top->className());
  if (const auto child = top->shownChild()) {
    std::ranges::copy(storyboard->scenesAfter(child->className()), std::back_inserter(next));
  }
  const auto missing = std::ranges::find_if(
      next, [&](const auto& className) { return !ahead_.contains(className); });
  if (missing == next.end()) return;
  UIApplication::current()->turn([&] { makeAhead(navigation, *storyboard->draft(*missing)); });
}

void SceneLoader::makeAhead(const UINavigationController& navigation, UIViewController& draft) {
  if (wings_ == nullptr) wings_ = makeItem("Wings", {}, &content_);
  draft.view()->setFrame(navigation.rootFrame(draft));  // what does not change is then laid out
  const auto skin = makeSkin(draft, wings_);
  skin.scene->readBar(navigation, draft);
  ahead_.emplace(draft.className(), skin);
}

SceneSkin SceneLoader::makeSkin(UIViewController& controller, QQuickItem* parent) {
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
