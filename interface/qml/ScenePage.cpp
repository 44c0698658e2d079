#include "interface/qml/ScenePage.h"

#include "interface/qml/SceneLoader.h"
#include "platform/foundation/FatalError.h"

namespace leafund {

ScenePage::ScenePage(SceneLoader& loader, UIViewController& controller, QQuickItem& parent)
    : loader_(loader),
      scene_(*new SceneObject(controller)),
      item_(loader.makeItem(controller.className(),
                            {{"scene", QVariant::fromValue(&scene_)}, {"visible", false}},
                            parent)) {}

ScenePage::~ScenePage() {
  QObject::connect(&item_, &QObject::destroyed, &scene_, &QObject::deleteLater);
  item_.setVisible(false);
  item_.deleteLater();
}

void ScenePage::refresh(const UINavigationController& navigation, UIViewController& controller) {
  scene_.readBar(navigation, controller);
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
