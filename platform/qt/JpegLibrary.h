#pragma once

// clang-format off
#include <cstdio>  // which libjpeg's header needs before it
#include <jpeglib.h>
// clang-format on

namespace leafund {

// What is used of libjpeg-turbo, loaded when the first JPEG is drawn; it stays loaded.
class JpegLibrary {
 public:
  static const JpegLibrary& get();

  // False where there is none; the functions are null then.
  bool isThere() const { return isThere_; }

  // Each as the library names it.
  decltype(&jpeg_std_error) stdError = nullptr;
  decltype(&jpeg_CreateDecompress) createDecompress = nullptr;
  decltype(&jpeg_destroy_decompress) destroyDecompress = nullptr;
  decltype(&jpeg_read_header) readHeader = nullptr;
  decltype(&jpeg_has_multiple_scans) hasMultipleScans = nullptr;
  decltype(&jpeg_calc_output_dimensions) calcOutputDimensions = nullptr;
  decltype(&jpeg_start_decompress) startDecompress = nullptr;
  decltype(&jpeg_consume_input) consumeInput = nullptr;
  decltype(&jpeg_start_output) startOutput = nullptr;
  decltype(&jpeg_read_scanlines) readScanlines = nullptr;
  decltype(&jpeg_resync_to_restart) resyncToRestart = nullptr;

 private:
  JpegLibrary();
  template <typename Function>
  void resolve(void* library, Function& function, const char* name);

  bool isThere_ = false;
};

}  // namespace leafund
