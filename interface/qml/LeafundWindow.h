#pragma once

#include "platform/qt/WindowSettings.h"

namespace leafund {

// The window of Leafund, for the host on Qt Quick.
WindowSettings leafundWindow();

}  // namespace leafund
