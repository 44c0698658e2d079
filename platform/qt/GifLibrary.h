#pragma once

#include <gif_lib.h>

namespace leafund {

// What is used of giflib, loaded when the first GIF is drawn; it stays loaded.
class GifLibrary {
 public:
  static const GifLibrary& get();

  // False where there is none; the functions are null then.
  bool isThere() const { return isThere_; }

  // Each as the library names it.
  decltype(&DGifOpen) open = nullptr;
  decltype(&DGifCloseFile) close = nullptr;
  decltype(&DGifGetRecordType) getRecordType = nullptr;
  decltype(&DGifGetImageDesc) getImageDesc = nullptr;
  decltype(&DGifGetExtension) getExtension = nullptr;
  decltype(&DGifGetExtensionNext) getExtensionNext = nullptr;
  decltype(&DGifGetLine) getLine = nullptr;

 private:
  GifLibrary();
  template <typename Function>
  void resolve(void* library, Function& function, const char* name);

  bool isThere_ = false;
};

}  // namespace leafund
