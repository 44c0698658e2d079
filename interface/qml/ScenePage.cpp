#include "interface/qml/ScenePage.h"

#include "interface/qml/SceneLoader.h"
#include "platform/display/SceneViews.h"
#include "platform/foundation/FatalError.h"

namespace leafund {

namespace {

// QML begins the names of properties with a small letter.
QString propertyName(const std::string& viewName) {
  const QString name = qtText(viewName);
  return name.isEmpty() ? QStringLiteral("root") : name.first(1).toLower() + name.sliced(1);
}

// The screen's own view, and the named ones.
std::vector<std::shared_ptr<UIView>> viewsOf(UIViewController& controller) {
  auto views = namedViews(controller);
  views.push_back(controller.view());
  return views;
}

}  // namespace

ScenePage::ScenePage(SceneLoader& loader, UIViewController& controller, QQuickItem& parent)
    : loader_(loader),
      bridges_(*new QObject),
      item_(loader.makeItem(controller.className(), makeBridges(controller), parent)) {
  for (const auto& [name, bridge] : views_) {
    const auto listed = item_.property(qPrintable(propertyName(name))).value<QObject*>();
    if (listed == bridge) continue;
    fatalError(controller.className(), "its page does not list the view " + name + " as its kind");
  }
}

ScenePage::~ScenePage() {
  QObject::connect(&item_, &QObject::destroyed, &bridges_, &QObject::deleteLater);
  item_.setVisible(false);
  item_.deleteLater();
}

QVariantMap ScenePage::makeBridges(UIViewController& controller) {
  QVariantMap properties{{"visible", false}};
  for (const auto& view : viewsOf(controller)) {
    auto* bridge = views_[view->name()] = makeBridge(view, &bridges_);
    properties[propertyName(view->name())] = QVariant::fromValue(bridge);
  }
  if (controller.parentViewController() == nullptr) {
    bar_ = new BarBridge(controller, &bridges_);
    properties["bar"] = QVariant::fromValue(bar_);
  }
  return properties;
}

void ScenePage::show(UIViewController& controller) {
  for (const auto& view : viewsOf(controller)) views_.at(view->name())->show(view);
}

void ScenePage::refresh(const UINavigationController& navigation, UIViewController& controller) {
  if (bar_ != nullptr) bar_->read(navigation, controller);
  if (const auto child = controller.shownChild()) showChild(*child);
}

void ScenePage::showChild(UIViewController& child) {
  auto& shown = children_.pageFor(child, [this](UIViewController& screen) {
    auto* place = item_.findChild<QQuickItem*>("tabs");
    if (place == nullptr) fatalError(screen.className(), "there is no place for it in its parent");
    return std::make_unique<ScenePage>(loader_, screen, *place);
  });
  children_.forEach([&](ScenePage& page) { page.item().setVisible(&page == &shown); });
}

}  // namespace leafund
