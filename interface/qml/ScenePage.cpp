#include "interface/qml/ScenePage.h"

#include "platform/foundation/FatalError.h"

namespace leafund {

ScenePage::ScenePage(SceneLoader& loader, UIViewController& controller, QQuickItem* parent)
    : loader_(loader), skin_(loader.skinOf(controller, parent)) {}

ScenePage::~ScenePage() {
  QObject::connect(&item(), &QObject::destroyed, skin_.scene, &QObject::deleteLater);
  item().setVisible(false);
  item().deleteLater();
}

void ScenePage::refresh(const UINavigationController& navigation, UIViewController& controller) {
  skin_.scene->readBar(navigation, controller);
  if (const auto child = controller.shownChild()) showChild(*child);
}

void ScenePage::showChild(UIViewController& child) {
  auto& shown = children_.pageFor(child, [this](UIViewController& screen) {
    auto* place = item().findChild<QQuickItem*>("tabs");
    if (place == nullptr) fatalError(screen.className(), "there is no place for it in its parent");
    return std::make_unique<ScenePage>(loader_, screen, place);
  });
  children_.forEach([&](ScenePage& page) { page.item().setVisible(&page == &shown); });
}

}  // namespace leafund
