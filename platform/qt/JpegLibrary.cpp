#include "platform/qt/JpegLibrary.h"

#include <dlfcn.h>

namespace leafund {

namespace {

// The binary interface follows the version that the library was built to be like.
constexpr const char* kFileName = JPEG_LIB_VERSION >= 80 ? "libjpeg.so.8" : "libjpeg.so.62";

}  // namespace

const JpegLibrary& JpegLibrary::get() {
  static const JpegLibrary library;
  return library;
}

JpegLibrary::JpegLibrary() {
  void* const library = dlopen(kFileName, RTLD_NOW | RTLD_LOCAL);
  isThere_ = library != nullptr;
  if (!isThere_) return;
  resolve(library, stdError, "jpeg_std_error");
  resolve(library, createDecompress, "jpeg_CreateDecompress");
  resolve(library, destroyDecompress, "jpeg_destroy_decompress");
  resolve(library, readHeader, "jpeg_read_header");
  resolve(library, hasMultipleScans, "jpeg_has_multiple_scans");
  resolve(library, calcOutputDimensions, "jpeg_calc_output_dimensions");
  resolve(library, startDecompress, "jpeg_start_decompress");
  resolve(library, consumeInput, "jpeg_consume_input");
  resolve(library, startOutput, "jpeg_start_output");
  resolve(library, readScanlines, "jpeg_read_scanlines");
  resolve(library, resyncToRestart, "jpeg_resync_to_restart");
}

template <typename Function>
void JpegLibrary::resolve(void* library, Function& function, const char* name) {
  function = reinterpret_cast<Function>(dlsym(library, name));
  isThere_ = isThere_ && function != nullptr;
}

}  // namespace leafund
