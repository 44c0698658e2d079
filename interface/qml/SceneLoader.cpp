#include "interface/qml/SceneLoader.h"

#include <QCoreApplication>
#include <QEvent>
#include <algorithm>
#include <iterator>
#include <utility>

#include "interface/qml/access/ItemAccess.h"
#include "interface/qml/bridge/WindowClass.h"
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
  const int windowClass = qmlTypeId("Leafund", 1, 0, "WindowClass");
  windowClass_ = engine_.singletonInstance<WindowClass*>(windowClass);
  windowClass_->follow(content);
}

SceneLoader::~SceneLoader() {
  ahead_.clear();
  // Their items go before the engine.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

double SceneLoader::railWidth() const { return windowClass_->rail(); }

std::unique_ptr<Page> SceneLoader::make(UIViewController& controller) {
  auto waiting = ahead_.extract(controller.className());
  if (!waiting) return std::make_unique<ScenePage>(*this, controller, content_);
  waiting.mapped()->show(controller);
  return std::move(waiting.mapped());
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
  UIApplication::current()->turn([&] {
    const auto draft = storyboard->draft(*missing);
    draft->view()->setFrame(navigation.rootFrame(*draft));  // what does not change is laid out
    ahead_.emplace(*missing, std::make_unique<ScenePage>(*this, *draft, content_));
  });
}

QQuickItem& SceneLoader::makeItem(const std::string& className, const QVariantMap& properties,
                                  QQuickItem& parent) {
  auto& component = components_[className];
  if (!component) {
    const QUrl url("qrc:/Leafund/" + qtText(className) + ".qml");
    component = std::make_unique<QQmlComponent>(&engine_, url);
    if (!component->isReady()) fatalError(className, component->errorString().toStdString());
  }
  auto* item = qobject_cast<QQuickItem*>(component->createWithInitialProperties(properties));
  if (item == nullptr) fatalError(className, component->errorString().toStdString());
  item->setObjectName(qtText(className));
  item->setParent(&parent);
  item->setParentItem(&parent);
  return *item;
}

}  // namespace leafund
