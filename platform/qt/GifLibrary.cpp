#include "platform/qt/GifLibrary.h"

#include <dlfcn.h>

namespace leafund {

const GifLibrary& GifLibrary::get() {
  static const GifLibrary library;
  return library;
}

GifLibrary::GifLibrary() {
  void* const library = dlopen("libgif.so.7", RTLD_NOW | RTLD_LOCAL);
  isThere_ = library != nullptr;
  if (!isThere_) return;
  resolve(library, open, "DGifOpen");
  resolve(library, close, "DGifCloseFile");
  resolve(library, getRecordType, "DGifGetRecordType");
  resolve(library, getImageDesc, "DGifGetImageDesc");
  resolve(library, getExtension, "DGifGetExtension");
  resolve(library, getExtensionNext, "DGifGetExtensionNext");
  resolve(library, getLine, "DGifGetLine");
}

template <typename Function>
void GifLibrary::resolve(void* library, Function& function, const char* name) {
  function = reinterpret_cast<Function>(dlsym(library, name));
  isThere_ = isThere_ && function != nullptr;
}

}  // namespace leafund
