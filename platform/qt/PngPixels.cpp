#include <png.h>

#include <cmath>
#include <csetjmp>

#include "platform/qt/DecodedPicture.h"

namespace leafund {

namespace {

// The range of gAMA values that are believed.
constexpr double kLeastGamma = 16e-5;
constexpr double kMostGamma = 6250;

class PngDecoder {
 public:
  explicit PngDecoder(const std::stop_token& stop) : stop_(stop) {}

  DecodedPicture decode(std::string_view body) {
    png_ = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    if (png_ != nullptr) info_ = png_create_info_struct(png_);
    // On an error, the rows decoded so far stay.
    if (info_ != nullptr && setjmp(png_jmpbuf(png_)) == 0) read(body);
    png_destroy_read_struct(&png_, &info_, nullptr);
    return std::move(decoded_);
  }

 private:
  static PngDecoder& of(png_structp png) {
    return *static_cast<PngDecoder*>(png_get_progressive_ptr(png));
  }

  void read(std::string_view body) {
    // No messages on standard error about a damaged picture.
    png_set_error_fn(
        png_, nullptr, [](png_structp png, png_const_charp) { png_longjmp(png, 1); },
        [](png_structp, png_const_charp) {});
    png_set_progressive_read_fn(
        png_, this, [](png_structp png, png_infop) { of(png).begin(); },
        [](png_structp png, png_bytep row, png_uint_32 y, int) { of(png).take(row, y); },
        [](png_structp, png_infop) {});
    png_set_user_limits(png_, 0xFFFF, 0xFFFF);
    png_set_chunk_cache_max(png_, 1);  // no words, which may be gigabytes when unpacked
    auto* bytes = reinterpret_cast<png_const_bytep>(body.data());
    png_process_data(png_, info_, const_cast<png_bytep>(bytes), body.size());
  }

  // The header is read, and all that stands before the pixels. Nothing here may be left by a jump
  // while it owns something.
  void begin() {
    const auto bytes =
        png_get_rowbytes(png_, info_) * static_cast<std::size_t>(png_get_image_height(png_, info_));
    if (bytes > kMostPngBytes) png_longjmp(png_, 1);
    decoded_.toSRgb = toSRgb();
    png_set_expand(png_);  // Colours by number, few bits and a colour that is clear.
    png_set_scale_16(png_);
    png_set_gray_to_rgb(png_);
    if (Q_BYTE_ORDER == Q_LITTLE_ENDIAN) {
      png_set_bgr(png_);
      png_set_add_alpha(png_, 0xFF, PNG_FILLER_AFTER);
    } else {
      png_set_swap_alpha(png_);
      png_set_add_alpha(png_, 0xFF, PNG_FILLER_BEFORE);
    }
    png_set_interlace_handling(png_);
    png_read_update_info(png_, info_);
    makeRoom();
  }

  void makeRoom() {
    const auto width = static_cast<int>(png_get_image_width(png_, info_));
    const auto height = static_cast<int>(png_get_image_height(png_, info_));
    if (4LL * width * height > kMostPictureBytes) return;
    decoded_.pixels = QImage(width, height, QImage::Format_ARGB32);
    decoded_.pixels.fill(Qt::transparent);
    bits_ = decoded_.pixels.bits();
    stride_ = static_cast<std::size_t>(decoded_.pixels.bytesPerLine());
  }

  // By its profile, or by what stands in place of one.
  ColourTransform toSRgb() const {
    using Pixels = ColourTransform::Pixels;
    png_charp name = nullptr;
    int compression = 0;
    png_bytep profile = nullptr;
    png_uint_32 length = 0;
    if (png_get_iCCP(png_, info_, &name, &compression, &profile, &length) != 0) {
      const bool isGrey = (png_get_color_type(png_, info_) & PNG_COLOR_MASK_COLOR) == 0;
      return ColourTransform::ofProfile({reinterpret_cast<const char*>(profile), length},
                                        isGrey ? Pixels::Grey : Pixels::Colours);
    }
    double gamma = 0;
    if (png_get_valid(png_, info_, PNG_INFO_sRGB) != 0) return {};
    if (png_get_gAMA(png_, info_, &gamma) == 0) return {};
    // Some versions of the library leave out what no screen ever had, and all decoders do.
    if (gamma < kLeastGamma || gamma > kMostGamma) return {};
    // Most write 1 / 2.2 and mean sRGB.
    const bool isAsSRgb = std::abs(gamma * 2.2 - 1) < PNG_GAMMA_THRESHOLD;
    ColourTransform::Primaries told;
    auto& [red, green, blue] = told.lights;
    const bool hasLights = png_get_cHRM(png_, info_, &told.white.x, &told.white.y, &red.x, &red.y,
                                        &green.x, &green.y, &blue.x, &blue.y) != 0;
    if (isAsSRgb && !hasLights) return {};
    told.gamma = isAsSRgb ? 0 : 1 / gamma;
    return ColourTransform::ofPrimaries(told);
  }

  void take(png_bytep row, png_uint_32 y) {
    if (bits_ == nullptr || stop_.stop_requested()) png_longjmp(png_, 1);
    if (row != nullptr) png_progressive_combine_row(png_, bits_ + y * stride_, row);
  }

  const std::stop_token& stop_;
  png_structp png_ = nullptr;
  png_infop info_ = nullptr;
  DecodedPicture decoded_;
  unsigned char* bits_ = nullptr;
  std::size_t stride_ = 0;
};

}  // namespace

DecodedPicture decodePng(std::string_view body, const std::stop_token& stop) {
  return PngDecoder(stop).decode(body);
}

}  // namespace leafund
