#pragma once

#include <webp/decode.h>

#include "platform/foundation/LoadedLibrary.h"

namespace leafund {

// The functions of libwebp that we call, by its own names. Loaded when the first WebP is drawn.
class WebPLibrary : public LoadedLibrary {
 public:
  static const WebPLibrary& get() {
    static const WebPLibrary library;
    return library;
  }

  decltype(&WebPINewRGB) newRgb = function("WebPINewRGB");
  decltype(&WebPIUpdate) update = function("WebPIUpdate");
  decltype(&WebPIDelete) remove = function("WebPIDelete");

 private:
  WebPLibrary() : LoadedLibrary("libwebp.so.7") {}
};

}  // namespace leafund
