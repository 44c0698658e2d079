#include <thread>
#include <utility>
#include <vector>

#include "tests/platform/PictureBytes.h"
#include "tests/support/ProcessorTime.h"
#include "tests/window/PixelsFixture.h"
#include "tests/window/WebPBytes.h"

namespace leafund {
namespace {

using namespace picturebytes;

// Hard to pack, so that it takes every decoder long.
QImage restless(QSize size) {
  QImage picture(size, QImage::Format_RGB32);
  std::srand(1);
  for (int y = 0; y < size.height(); ++y) {
    for (int x = 0; x < size.width(); ++x) picture.setPixel(x, y, static_cast<QRgb>(std::rand()));
  }
  return picture;
}

// Of 128 greys, and not packed: each code stands for a pixel, and the table of those that stand for
// more is thrown away before it makes them longer.
std::string restlessGif(unsigned width, unsigned height) {
  std::string codes;
  for (unsigned pixel = 0; pixel < width * height; ++pixel) {
    if (pixel % 120 == 0) codes += byte(128);
    codes += byte(static_cast<unsigned>(std::rand()) & 127U);
  }
  codes += byte(129);
  const std::string size = little16(width) + little16(height);
  std::string body =
      "GIF89a" + size + std::string(3, '\0') + ',' + little32(0) + size + byte(0) + byte(7);
  for (std::size_t at = 0; at < codes.size(); at += 255) {
    const std::string block = codes.substr(at, 255);
    body += byte(static_cast<unsigned>(block.size())) + block;
  }
  return body + byte(0) + ';';
}

double secondsFor(const UIImage& picture, const std::stop_token& stop = {}) {
  const double start = processorSeconds();
  picturePixels(picture, {128, 128}, stretch, stop);
  return processorSeconds() - start;
}

// Once it is under way.
double secondsStoppedSoon(const UIImage& picture) {
  std::stop_source stop;
  const std::jthread user([&stop] {
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
    stop.request_stop();
  });
  return secondsFor(picture, stop.get_token());
}

// On a busy machine one round may take anything, and who stops it may be late.
template <class Round>
double leastOfFive(const Round& round) {
  double least = round();
  for (int again = 0; again < 4; ++again) least = std::min(least, round());
  return least;
}

TEST(PictureStopTest, EveryDecoderStopsBeforeAndUnderWay) {
  const QImage large = restless({1600, 1200});
  const std::pair<const char*, std::string> bodies[] = {{"JPEG", *written(large, "jpeg")},
                                                        {"PNG", *written(large, "png")},
                                                        {"GIF", restlessGif(1600, 1200)},
                                                        {"WebP", webpOf(large, 60)},
                                                        {"WebP without loss", webpOf(large, 100)}};
  for (const auto& [name, body] : bodies) {
    SCOPED_TRACE(name);
    const auto picture = UIImage::initWithData(std::make_shared<const std::string>(body));
    ASSERT_TRUE(picture);
    const double whole = leastOfFive([&] { return secondsFor(*picture); });
    RecordProperty(name, std::to_string(whole));
    std::stop_source stopped;
    stopped.request_stop();
    EXPECT_LT(leastOfFive([&] { return secondsFor(*picture, stopped.get_token()); }), whole / 2);
    EXPECT_LT(leastOfFive([&] { return secondsStoppedSoon(*picture); }), whole / 2);
  }
}

}  // namespace
}  // namespace leafund
