#pragma once

#include "platform/uikit/UIStoryboard.h"

namespace leafund {

// The scenes and the navigation map. Made at first use, and there as long as the process.
const UIStoryboard& mainStoryboard();

}  // namespace leafund
