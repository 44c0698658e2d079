#pragma once

#include <gif_lib.h>

#include "platform/foundation/LoadedLibrary.h"

namespace leafund {

// What is used of giflib, loaded when the first GIF is drawn. Each as the library names it.
class GifLibrary : public LoadedLibrary {
 public:
  static const GifLibrary& get() {
    static const GifLibrary library;
    return library;
  }

  decltype(&DGifOpen) open = function("DGifOpen");
  decltype(&DGifCloseFile) close = function("DGifCloseFile");
  decltype(&DGifGetRecordType) getRecordType = function("DGifGetRecordType");
  decltype(&DGifGetImageDesc) getImageDesc = function("DGifGetImageDesc");
  decltype(&DGifGetExtension) getExtension = function("DGifGetExtension");
  decltype(&DGifGetExtensionNext) getExtensionNext = function("DGifGetExtensionNext");
  decltype(&DGifGetLine) getLine = function("DGifGetLine");

 private:
  GifLibrary() : LoadedLibrary("libgif.so.7") {}
};

}  // namespace leafund
