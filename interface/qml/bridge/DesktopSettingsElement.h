#pragma once

#include <QtQmlIntegration/qqmlintegration.h>

#include <QQmlEngine>

#include "platform/qt/DesktopSettings.h"

namespace leafund {

// Lets QML know the desktop's settings as the singleton Desktop.
struct DesktopSettingsElement {
  Q_GADGET
  QML_FOREIGN(leafund::DesktopSettings)
  QML_NAMED_ELEMENT(Desktop)
  QML_SINGLETON

 public:
  static DesktopSettings* create(QQmlEngine*, QJSEngine*) {
    auto& settings = DesktopSettings::ofApplication();
    QQmlEngine::setObjectOwnership(&settings, QQmlEngine::CppOwnership);
    return &settings;
  }
};

}  // namespace leafund
