#include "interface/qml/LeafundWindow.h"

#include "interface/qml/SceneLoader.h"

namespace leafund {

WindowSettings leafundWindow() {
  return {.title = QStringLiteral("Leafund"),
          .desktopFile = QStringLiteral("app.leafund.Leafund"),
          .icon = QStringLiteral(":/Leafund/leafund-64.png"),
          .typeface = QStringLiteral("Inter"),
          .startSize = {390, 844},
          .makePages = [](QQuickItem& window) { return std::make_unique<SceneLoader>(window); }};
}

}  // namespace leafund
