// From the body of a JPEG to the 128 by 128 pixels of a row's picture, beside the scaled decoding
// of the same bytes, and beside a full decoding with a smooth scaling after it.

#include <benchmark/benchmark.h>
#include <jpeglib.h>

#include <QBuffer>
#include <QImage>
#include <map>
#include <string>
#include <vector>

#include "bench/Campaigns.h"
#include "bench/SilentHost.h"
#include "platform/graphics/DrawingContext.h"
#include "platform/graphics/UIImage.h"
#include "platform/qt/PicturePixels.h"
#include "screens/lists/PictureFetch.h"

namespace leafund {
namespace {

constexpr int kSide = 128;

// One of the demonstration pictures at the width asked for.
const std::string& body(int width) {
  static std::map<int, std::string> bodies;
  auto& made = bodies[width];
  if (made.empty()) {
    const QImage drawn(QStringLiteral(LEAFUND_PICTURES_DIR "/biking-to-work.jpg"));
    demand(drawn.width() == 640, "the picture is there");
    QByteArray bytes;
    QBuffer buffer(&bytes);
    drawn.scaled(width, width * 3 / 4, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .save(&buffer, "JPEG", 90);
    made = bytes.toStdString();
  }
  return made;
}

// The way of a row's picture: its header decides, it is redrawn, and its pixels are made.
void rowPicture(benchmark::State& state) {
  const auto data = std::make_shared<const std::string>(body(static_cast<int>(state.range(0))));
  QImage pixels;
  for (auto _ : state) {
    const auto redrawn = redrawnImage(UIImage::initWithData(data), {kSide, kSide});
    pixels = picturePixels(*redrawn, {kSide, kSide}, UIViewContentMode::ScaleToFill);
  }
  demand(pixels.width() == kSide && qGray(pixels.pixel(64, 64)) > 0, "there is a picture");
}

// The least denominator of JPEG's own scaling, 1 to 8, that leaves enough pixels.
unsigned scaledBy(const jpeg_decompress_struct& picture) {
  unsigned by = 8;
  while (by > 1 && (picture.image_width / by < kSide || picture.image_height / by < kSide)) by /= 2;
  return by;
}

void scaledDecoding(benchmark::State& state) {
  const auto& bytes = body(static_cast<int>(state.range(0)));
  std::vector<unsigned char> pixels;
  for (auto _ : state) {
    jpeg_error_mgr errors;
    jpeg_decompress_struct picture;
    picture.err = jpeg_std_error(&errors);
    jpeg_create_decompress(&picture);
    jpeg_mem_src(&picture, reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
    jpeg_read_header(&picture, TRUE);
    picture.scale_num = 1;
    picture.scale_denom = scaledBy(picture);
    picture.out_color_space = JCS_EXT_BGRX;
    jpeg_start_decompress(&picture);
    const std::size_t line = std::size_t{4} * picture.output_width;
    pixels.resize(line * picture.output_height);
    while (picture.output_scanline < picture.output_height) {
      unsigned char* row = pixels.data() + line * picture.output_scanline;
      jpeg_read_scanlines(&picture, &row, 1);
    }
    jpeg_finish_decompress(&picture);
    jpeg_destroy_decompress(&picture);
  }
  demand(pixels.size() >= 4UL * kSide * kSide, "enough was decoded");
}

void fullDecoding(benchmark::State& state) {
  const auto& bytes = body(static_cast<int>(state.range(0)));
  QImage pixels;
  for (auto _ : state) {
    QImage whole;
    whole.loadFromData(reinterpret_cast<const uchar*>(bytes.data()), static_cast<int>(bytes.size()),
                       "jpeg");
    pixels = whole.scaled(kSide, kSide, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  }
  demand(pixels.width() == kSide, "there is a picture");
}

BENCHMARK(rowPicture)->Arg(640)->Arg(4000);
BENCHMARK(scaledDecoding)->Arg(640)->Arg(4000);
BENCHMARK(fullDecoding)->Arg(640)->Arg(4000);

}  // namespace
}  // namespace leafund

int main(int argc, char** argv) {
  leafund::SilentHost host;  // whose screen the drawing contexts ask for its scale
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
