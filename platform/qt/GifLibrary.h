#pragma once

#include <gif_lib.h>

#include "platform/foundation/LoadedLibrary.h"

namespace leafund {

// The functions of giflib that we call, by its own names. Loaded when the first GIF is drawn.
class GifLibrary : public LoadedLibrary {
 public:
  GifLibrary() : LoadedLibrary("libgif.so.7") {}

  decltype(&DGifOpen) open = function("DGifOpen");
  decltype(&DGifCloseFile) close = function("DGifCloseFile");
  decltype(&DGifGetRecordType) getRecordType = function("DGifGetRecordType");
  decltype(&DGifGetImageDesc) getImageDesc = function("DGifGetImageDesc");
  decltype(&DGifGetExtension) getExtension = function("DGifGetExtension");
  decltype(&DGifGetExtensionNext) getExtensionNext = function("DGifGetExtensionNext");
  decltype(&DGifGetLine) getLine = function("DGifGetLine");
};

}  // namespace leafund
