#pragma once

// clang-format off
#include <cstdio>  // which libjpeg's header needs before it
#include <jpeglib.h>
// clang-format on

#include "platform/foundation/LoadedLibrary.h"

namespace leafund {

// The functions of libjpeg-turbo that we call, by its own names. Loaded when the first JPEG is
// drawn.
class JpegLibrary : public LoadedLibrary {
 public:
  // The binary interface follows the version that the library was built to be like.
  JpegLibrary() : LoadedLibrary(JPEG_LIB_VERSION >= 80 ? "libjpeg.so.8" : "libjpeg.so.62") {}

  decltype(&jpeg_std_error) stdError = function("jpeg_std_error");
  decltype(&jpeg_CreateDecompress) createDecompress = function("jpeg_CreateDecompress");
  decltype(&jpeg_destroy_decompress) destroyDecompress = function("jpeg_destroy_decompress");
  decltype(&jpeg_read_header) readHeader = function("jpeg_read_header");
  decltype(&jpeg_has_multiple_scans) hasMultipleScans = function("jpeg_has_multiple_scans");
  decltype(&jpeg_calc_output_dimensions) calcOutputDimensions =
      function("jpeg_calc_output_dimensions");
  decltype(&jpeg_start_decompress) startDecompress = function("jpeg_start_decompress");
  decltype(&jpeg_consume_input) consumeInput = function("jpeg_consume_input");
  decltype(&jpeg_start_output) startOutput = function("jpeg_start_output");
  decltype(&jpeg_read_scanlines) readScanlines = function("jpeg_read_scanlines");
  decltype(&jpeg_resync_to_restart) resyncToRestart = function("jpeg_resync_to_restart");
};

}  // namespace leafund
