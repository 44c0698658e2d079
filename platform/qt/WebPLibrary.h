#pragma once

#include <webp/decode.h>

namespace leafund {

// What is used of libwebp, loaded when the first WebP is drawn; it stays loaded.
class WebPLibrary {
 public:
  static const WebPLibrary& get();

  // False where there is none.
  bool isThere() const { return newRgb != nullptr && update != nullptr && remove != nullptr; }

  // Each as the library names it, and null where there is none.
  decltype(&WebPINewRGB) newRgb = nullptr;
  decltype(&WebPIUpdate) update = nullptr;
  decltype(&WebPIDelete) remove = nullptr;

 private:
  WebPLibrary();
};

}  // namespace leafund
