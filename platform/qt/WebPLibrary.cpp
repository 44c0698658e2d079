#include "platform/qt/WebPLibrary.h"

#include <dlfcn.h>

namespace leafund {

const WebPLibrary& WebPLibrary::get() {
  static const WebPLibrary library;
  return library;
}

WebPLibrary::WebPLibrary() {
  void* const library = dlopen("libwebp.so.7", RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) return;
  newRgb = reinterpret_cast<decltype(newRgb)>(dlsym(library, "WebPINewRGB"));
  update = reinterpret_cast<decltype(update)>(dlsym(library, "WebPIUpdate"));
  remove = reinterpret_cast<decltype(remove)>(dlsym(library, "WebPIDelete"));
}

}  // namespace leafund
