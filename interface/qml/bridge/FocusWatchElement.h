#pragma once

#include <QtQmlIntegration/qqmlintegration.h>

#include "platform/qt/FocusWatch.h"

namespace leafund {

// Lets QML know the host's FocusWatch by its name.
struct FocusWatchElement {
  Q_GADGET
  QML_FOREIGN(leafund::FocusWatch)
  QML_NAMED_ELEMENT(FocusWatch)
};

}  // namespace leafund
