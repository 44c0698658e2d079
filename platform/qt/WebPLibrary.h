#pragma once

#include <webp/decode.h>

#include "platform/foundation/LoadedLibrary.h"

namespace leafund {

// The functions of libwebp that we call, by its own names. Loaded when the first WebP is drawn.
class WebPLibrary : public LoadedLibrary {
 public:
  WebPLibrary() : LoadedLibrary("libwebp.so.7") {}

  decltype(&WebPINewRGB) newRgb = function("WebPINewRGB");
  decltype(&WebPIUpdate) update = function("WebPIUpdate");
  decltype(&WebPIDelete) remove = function("WebPIDelete");
};

}  // namespace leafund
