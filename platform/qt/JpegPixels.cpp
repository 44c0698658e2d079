#include <csetjmp>
#include <utility>

#include "platform/graphics/JpegSegments.h"
#include "platform/qt/DecodedPicture.h"
#include "platform/qt/JpegLibrary.h"

namespace leafund {

namespace {

// What decoding a byte takes, in pixels of a scan without news: measured, and rounded.
constexpr long long kWorkOfAByte = 4;
constexpr long long kWorkOfAnArithmeticByte = 100;
// And beginning a scan, however few pixels it has.
constexpr long long kWorkOfAScan = 1000;

constexpr unsigned kGrey = 0xFF808080;
// RGB32 is a number, whose bytes lie by the machine's order.
constexpr J_COLOR_SPACE kRgb32 = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? JCS_EXT_BGRX : JCS_EXT_XRGB;

// libjpeg reports an error by a function that must not return.
struct Errors {
  jpeg_error_mgr manager;
  std::jmp_buf back;
};

void leave(j_common_ptr picture) { std::longjmp(reinterpret_cast<Errors*>(picture->err)->back, 1); }

// The body, and behind it the mark of its end for as often as it is asked.
struct Source {
  jpeg_source_mgr manager;
  bool isUsedUp;
};

boolean endTheSource(j_decompress_ptr picture) {
  static constexpr JOCTET end[] = {0xFF, JPEG_EOI};
  auto& source = *reinterpret_cast<Source*>(picture->src);
  source.isUsedUp = true;
  source.manager.next_input_byte = end;
  source.manager.bytes_in_buffer = sizeof end;
  return TRUE;
}

void skip(j_decompress_ptr picture, long count) {
  auto& source = picture->src;
  if (count <= 0) return;
  if (static_cast<std::size_t>(count) > source->bytes_in_buffer) {
    endTheSource(picture);
    return;
  }
  source->next_input_byte += count;
  source->bytes_in_buffer -= static_cast<std::size_t>(count);
}

// They are stored inverted, 255 being no ink: so Adobe's programs do, and whoever reads them takes
// it for granted.
void cmykToRgb32(unsigned char* row, unsigned width) {
  for (unsigned x = 0; x < width; ++x, row += 4) {
    const auto light = [row](int which) { return static_cast<QRgb>(row[which] * row[3] / 255); };
    *reinterpret_cast<QRgb*>(row) = 0xFF000000 | light(0) << 16 | light(1) << 8 | light(2);
  }
}

class JpegDecoder {
 public:
  JpegDecoder(const JpegLibrary& jpeg, std::string_view body, const std::stop_token& stop)
      : jpeg_(jpeg), body_(body), stop_(stop), picture_{} {
    source_.manager.next_input_byte = reinterpret_cast<const JOCTET*>(body.data());
    source_.manager.bytes_in_buffer = body.size();
    bytesLeft_ = body.size();
    source_.manager.init_source = [](j_decompress_ptr) {};
    source_.manager.fill_input_buffer = &endTheSource;
    source_.manager.skip_input_data = &skip;
    source_.manager.resync_to_restart = jpeg.resyncToRestart;
    source_.manager.term_source = [](j_decompress_ptr) {};
    picture_.err = jpeg.stdError(&errors_.manager);
    errors_.manager.error_exit = &leave;
    errors_.manager.emit_message = [](j_common_ptr, int) {};  // a damaged picture is no news
    errors_.manager.output_message = [](j_common_ptr) {};
  }
  JpegDecoder(const JpegDecoder&) = delete;
  JpegDecoder& operator=(const JpegDecoder&) = delete;
  ~JpegDecoder() { jpeg_.destroyDecompress(&picture_); }

  DecodedPicture decode(QSize enough) {
    DecodedPicture decoded;
    if (!tried([&] { begin(enough); }) || memoryNeeded() > kMostPictureBytes) return decoded;
    ColourTransform toSRgb = this->toSRgb();
    // Inks become colours row by row, before they are made smaller.
    (isOfInks() ? inksToSRgb_ : decoded.toSRgb) = std::move(toSRgb);
    QImage pixels(static_cast<int>(picture_.output_width), static_cast<int>(picture_.output_height),
                  QImage::Format_RGB32);
    if (pixels.isNull()) return decoded;
    pixels.fill(kGrey);
    unsigned char* const bits = pixels.bits();
    const auto stride = static_cast<std::size_t>(pixels.bytesPerLine());
    // An error further down leaves what has come by then.
    tried([&] { readRows(bits, stride); });
    if (hasRows_) decoded.pixels = std::move(pixels);
    return decoded;
  }

 private:
  // Whether the step finished. An error leaves it by longjmp, so it must own nothing.
  template <typename Step>
  bool tried(Step step) {
    if (setjmp(errors_.back) != 0) return false;
    step();
    return true;
  }

  void begin(QSize enough) {
    jpeg_.createDecompress(&picture_, JPEG_LIB_VERSION, sizeof picture_);
    picture_.src = &source_.manager;
    jpeg_.readHeader(&picture_, TRUE);
    const auto isEnough = [&](unsigned eighths) {
      return picture_.image_width * eighths >= 8U * static_cast<unsigned>(enough.width()) &&
             picture_.image_height * eighths >= 8U * static_cast<unsigned>(enough.height());
    };
    picture_.scale_num = 1;
    while (picture_.scale_num < 8 && !isEnough(picture_.scale_num)) ++picture_.scale_num;
    picture_.scale_denom = 8;
    picture_.out_color_space = isOfInks() ? JCS_CMYK : kRgb32;
    picture_.buffered_image = jpeg_.hasMultipleScans(&picture_);
    jpeg_.calcOutputDimensions(&picture_);
  }

  bool isOfInks() const {
    return picture_.jpeg_color_space == JCS_CMYK || picture_.jpeg_color_space == JCS_YCCK;
  }

  // The pixels, and the coefficients of a picture that comes in several scans.
  long long memoryNeeded() const {
    long long bytes = 4LL * picture_.output_width * picture_.output_height;
    if (!picture_.buffered_image) return bytes;
    for (int at = 0; at < picture_.num_components; ++at) {
      const jpeg_component_info& component = picture_.comp_info[at];
      bytes += 1LL * component.width_in_blocks * component.height_in_blocks * sizeof(JBLOCK);
    }
    return bytes;
  }

  // libjpeg would keep the segments of a profile in a list, and go through it for each one more:
  // 200 KB of empty ones took three seconds, 60 MB did not come to an end.
  ColourTransform toSRgb() const {
    using Pixels = ColourTransform::Pixels;
    const std::string profile = jpegProfile(body_);
    if (profile.empty()) return {};
    const auto colours =
        picture_.jpeg_color_space == JCS_GRAYSCALE ? Pixels::Grey : Pixels::Colours;
    return ColourTransform::ofProfile(profile, isOfInks() ? Pixels::Inks : colours);
  }

  void readRows(unsigned char* bits, std::size_t stride) {
    jpeg_.startDecompress(&picture_);
    if (picture_.buffered_image) readScans();
    const long long workOfARow = workOfSourceRows(1);
    countBytes();
    int rowsOfNothing = 0;
    while (picture_.output_scanline < picture_.output_height) {
      if (stop_.stop_requested()) return;
      if (!picture_.buffered_image && work_ > kMostJpegWork) return;
      // A body that is cut short still has what is left of its last blocks.
      if (source_.isUsedUp && !picture_.buffered_image && ++rowsOfNothing > mostRowsOfABlock()) {
        return;
      }
      JSAMPROW row = bits + picture_.output_scanline * stride;
      jpeg_.readScanlines(&picture_, &row, 1);
      hasRows_ = true;
      work_ += workOfARow * 8 / static_cast<int>(picture_.scale_num);
      countBytes();
      if (!inksToSRgb_.isNone()) {
        inksToSRgb_.apply(reinterpret_cast<QRgb*>(row), picture_.output_width);
      } else if (isOfInks()) {
        cmykToRgb32(row, picture_.output_width);
      }
    }
  }

  void readScans() {
    const long long workOfABlockRow = workOfSourceRows(8 * picture_.max_v_samp_factor);
    int state = JPEG_ROW_COMPLETED;
    while (state != JPEG_REACHED_EOI && work_ <= kMostJpegWork && !stop_.stop_requested()) {
      state = jpeg_.consumeInput(&picture_);
      if (state == JPEG_ROW_COMPLETED || state == JPEG_SCAN_COMPLETED) work_ += workOfABlockRow;
      if (state == JPEG_SCAN_COMPLETED) work_ += kWorkOfAScan;
      countBytes();
    }
    // Not the scan that is still arriving: libjpeg would read it to its end.
    const bool isWhole = state == JPEG_REACHED_EOI;
    const int scan = picture_.input_scan_number;
    jpeg_.startOutput(&picture_, isWhole || scan <= 1 ? scan : scan - 1);
  }

  // Counts the bytes read since the last call; none once the source is used up.
  void countBytes() {
    const std::size_t left = source_.isUsedUp ? 0 : source_.manager.bytes_in_buffer;
    const auto read = static_cast<long long>(std::exchange(bytesLeft_, left) - left);
    work_ += read * (picture_.arith_code ? kWorkOfAnArithmeticByte : kWorkOfAByte);
  }
  long long workOfSourceRows(int rows) const { return 1LL * rows * picture_.image_width; }
  int mostRowsOfABlock() const { return 8 * picture_.max_v_samp_factor; }

  const JpegLibrary& jpeg_;
  const std::string_view body_;
  const std::stop_token& stop_;
  jpeg_decompress_struct picture_;
  Errors errors_{};
  Source source_{};
  ColourTransform inksToSRgb_;
  std::size_t bytesLeft_ = 0;
  long long work_ = 0;
  bool hasRows_ = false;
};

}  // namespace

DecodedPicture decodeJpeg(std::string_view body, QSize enough, const std::stop_token& stop) {
  const auto jpeg = loaded<JpegLibrary>();
  return jpeg->isThere() ? JpegDecoder(*jpeg, body, stop).decode(enough) : DecodedPicture{};
}

}  // namespace leafund
