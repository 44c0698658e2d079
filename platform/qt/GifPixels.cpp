#include <algorithm>
#include <span>
#include <vector>

#include "platform/qt/DecodedPicture.h"
#include "platform/qt/GifLibrary.h"

namespace leafund {

namespace {

constexpr long long kMostPixels = kMostPictureBytes / 4;

struct Source {
  std::string_view body;
  const std::stop_token& stop;
};

// Once a stop is requested, the body seems to end there, like one that was cut short.
int readBody(GifFileType* gif, GifByteType* to, int count) {
  auto& source = *static_cast<Source*>(gif->UserData);
  if (source.stop.stop_requested()) return 0;
  const auto taken = source.body.copy(reinterpret_cast<char*>(to), static_cast<std::size_t>(count));
  source.body.remove_prefix(taken);
  return static_cast<int>(taken);
}

class GifDecoder {
 public:
  GifDecoder(const GifLibrary& library, std::string_view body, const std::stop_token& stop)
      : library_(library), source_{body, stop}, gif_(library.open(&source_, &readBody, nullptr)) {}
  GifDecoder(const GifDecoder&) = delete;
  GifDecoder& operator=(const GifDecoder&) = delete;
  ~GifDecoder() {
    if (gif_ != nullptr) library_.close(gif_, nullptr);
  }

  QImage decode() {
    if (gif_ == nullptr || 1LL * gif_->SWidth * gif_->SHeight > kMostPixels || !findFrame()) {
      return {};
    }
    QImage canvas(gif_->SWidth, gif_->SHeight, QImage::Format_ARGB32);
    if (canvas.isNull()) return {};
    canvas.fill(Qt::transparent);
    drawOn(canvas);
    return canvas;
  }

 private:
  // Whether the first frame is there, read to where its pixels begin.
  bool findFrame() {
    GifRecordType record{};
    while (library_.getRecordType(gif_, &record) == GIF_OK) {
      if (record == IMAGE_DESC_RECORD_TYPE) return library_.getImageDesc(gif_) == GIF_OK;
      if (record == TERMINATE_RECORD_TYPE || !readExtension()) return false;
    }
    return false;
  }

  bool readExtension() {
    int kind = 0;
    GifByteType* bytes = nullptr;
    if (library_.getExtension(gif_, &kind, &bytes) == GIF_ERROR) return false;
    // A length, flags, two bytes of how long it is seen, and the colour that is clear.
    if (kind == GRAPHICS_EXT_FUNC_CODE && bytes != nullptr && bytes[0] >= 4) {
      clear_ = (bytes[1] & 1) != 0 ? bytes[4] : NO_TRANSPARENT_COLOR;
    }
    while (bytes != nullptr) {
      if (library_.getExtensionNext(gif_, &bytes) == GIF_ERROR) return false;
    }
    return true;
  }

  // Without a table the numbers are greys, and what is not in the table is clear.
  std::vector<QRgb> colours() const {
    const ColorMapObject* const map =
        gif_->Image.ColorMap != nullptr ? gif_->Image.ColorMap : gif_->SColorMap;
    std::vector<QRgb> colours(256, qRgba(0, 0, 0, 0));
    for (int at = 0; at < (map != nullptr ? map->ColorCount : 256); ++at) {
      const GifColorType colour = map != nullptr ? map->Colors[at] : greyOf(at);
      colours[static_cast<std::size_t>(at)] = qRgb(colour.Red, colour.Green, colour.Blue);
    }
    if (clear_ != NO_TRANSPARENT_COLOR) colours[static_cast<std::size_t>(clear_)] = 0;
    return colours;
  }

  static GifColorType greyOf(int number) {
    const auto light = static_cast<GifByteType>(number);
    return {light, light, light};
  }

  // As many rows as come, and no more pixels of those out of sight than a canvas may have.
  void drawOn(QImage& canvas) {
    struct Pass {
      int first, step;
    };
    static constexpr Pass interlaced[] = {{0, 8}, {4, 8}, {2, 4}, {1, 2}};
    static constexpr Pass straight[] = {{0, 1}};
    const GifImageDesc& frame = gif_->Image;
    const bool isInterlaced = frame.Interlace;
    const auto colours = this->colours();
    std::vector<GifPixelType> row(static_cast<std::size_t>(frame.Width));
    long long left = kMostPixels;
    for (const Pass pass : isInterlaced ? std::span<const Pass>(interlaced) : straight) {
      for (int y = pass.first; y < frame.Height; y += pass.step) {
        const bool isBelow = !isInterlaced && frame.Top + y >= canvas.height();
        left -= frame.Width;
        if (isBelow || left < 0 || library_.getLine(gif_, row.data(), frame.Width) == GIF_ERROR) {
          return;
        }
        drawRow(canvas, frame.Left, frame.Top + y, row, colours);
      }
    }
  }

  static void drawRow(QImage& canvas, int left, int y, const std::vector<GifPixelType>& row,
                      const std::vector<QRgb>& colours) {
    if (y >= canvas.height()) return;
    auto* const pixels = reinterpret_cast<QRgb*>(canvas.scanLine(y));
    const int count = std::min(static_cast<int>(row.size()), canvas.width() - left);
    for (int x = 0; x < count; ++x) pixels[left + x] = colours[row[static_cast<std::size_t>(x)]];
  }

  const GifLibrary& library_;
  Source source_;
  GifFileType* gif_;
  int clear_ = NO_TRANSPARENT_COLOR;
};

}  // namespace

DecodedPicture decodeGif(std::string_view body, const std::stop_token& stop) {
  const auto library = loaded<GifLibrary>();
  return {library->isThere() ? GifDecoder(*library, body, stop).decode() : QImage(), {}};
}

}  // namespace leafund
