#include "interface/qml/bridge/BarBridge.h"

#include <utility>

#include "platform/qt/QtValues.h"
#include "platform/uikit/UIApplication.h"

namespace leafund {

BarBridge::BarBridge(const UIViewController& controller, QObject* parent)
    : QObject(parent), title_(qtText(controller.navigationItem().title())) {}

void BarBridge::read(const UINavigationController& navigation, const UIViewController& controller) {
  const auto title = std::exchange(title_, qtText(navigation.barTitle(controller)));
  const bool visible = std::exchange(visible_, navigation.showsBar(controller));
  const bool couldGoBack = std::exchange(canGoBack_, navigation.canGoBack(controller));
  if (title != title_) emit titleChanged();
  if (visible != visible_) emit visibleChanged();
  if (couldGoBack != canGoBack_) emit canGoBackChanged();
}

void BarBridge::goBack() {
  if (auto* application = UIApplication::current()) application->goBack();
}

}  // namespace leafund
