#include "tests/platform/PictureBytes.h"
#include "tests/window/PixelsFixture.h"
#include "tests/window/WebPBytes.h"

namespace leafund {
namespace {

using namespace picturebytes;

TEST(PictureWebPTest, ItIsDrawnWithAndWithoutLoss) {
  for (const int quality : {90, 100}) {
    expectQuadrants(drawn(webpOf(quadrants({64, 64}), quality), {64, 64}));
    expectQuadrants(drawn(webpOf(quadrants({300, 200}), quality)));
  }
}

TEST(PictureWebPTest, WhatIsClearStaysClear) {
  QImage clear = quadrants({64, 64}).convertToFormat(QImage::Format_ARGB32);
  for (int y = 0; y < 32; ++y) {
    for (int x = 0; x < 32; ++x) clear.setPixel(x, y, 0);
  }
  for (const int quality : {90, 100}) {
    const QImage image = drawn(webpOf(clear, quality), {64, 64});
    EXPECT_EQ(image.pixelColor(8, 8).alpha(), 0);
    EXPECT_TRUE(shows(image, 56, 8, Qt::green));
  }
}

TEST(PictureWebPTest, WhateverIsCutOffTheRestIsDrawn) {
  QImage restless = quadrants({256, 256});
  std::srand(1);
  for (int y = 64; y < 256; ++y) {
    for (int x = 0; x < 256; ++x) restless.setPixel(x, y, static_cast<QRgb>(std::rand()));
  }
  const std::string body = webpOf(restless, 90);
  for (const std::size_t percent : {50U, 75U, 95U}) {
    const QImage image = drawn(body.substr(0, body.size() * percent / 100), {256, 256});
    ASSERT_FALSE(image.isNull());
    EXPECT_TRUE(shows(image, 10, 10, Qt::red)) << percent;
    EXPECT_EQ(image.pixelColor(10, 255).alpha(), 0) << percent;
  }
}

TEST(PictureWebPTest, OfAnAnimationTheFirstPictureIsDrawnWhereItLies) {
  QImage red(16, 16, QImage::Format_ARGB32);
  red.fill(Qt::red);
  const auto frame = [&](unsigned x, unsigned y, const QImage& picture) {
    return riffChunk("ANMF", little24(x / 2) + little24(y / 2) + little24(15) + little24(15) +
                                 little32(100) + webpOf(picture, 100).substr(12));
  };
  QImage blue = red;
  blue.fill(Qt::blue);
  const std::string frames =
      riffChunk("ANIM", std::string(6, '\0')) + frame(32, 8, red) + frame(0, 0, blue);

  const QImage image = drawn(extendedWebP(64, 64, frames), {64, 64});

  EXPECT_TRUE(shows(image, 40, 16, Qt::red));
  EXPECT_EQ(image.pixelColor(4, 4).alpha(), 0);
  EXPECT_EQ(image.pixelColor(60, 60).alpha(), 0);
  // Outside of its canvas there is nothing to draw.
  EXPECT_TRUE(drawn(extendedWebP(64, 64, frame(56, 0, red))).isNull());
}

// The last of eight parts begins behind that; libwebp draws nothing before it has been given all of
// the others.
TEST(PictureWebPTest, BehindThirtyTwoMegabytesNothingLossyIsDrawn) {
  const auto lossy = [](std::size_t padding) {
    return riffChunk("VP8 ", lossyPartsOf(quadrants({128, 128}), padding));
  };
  const std::string clear = riffChunk("ALPH", "");
  const auto animated = [](const std::string& frame) {
    const std::string whole = little24(0) + little24(0) + little24(127) + little24(127);
    return extendedWebP(
        128, 128,
        riffChunk("ANIM", std::string(6, '\0')) + riffChunk("ANMF", whole + little32(100) + frame));
  };
  const std::string few = lossy(4'000'000);
  const std::string many = lossy(5'000'000);

  expectQuadrants(drawn(webp(few)));
  expectQuadrants(drawn(animated(few)));
  // Neither a chunk for the alpha channel, which is lossless, nor the head of a frame makes it
  // more.
  for (const auto& body : {webp(many), webp(many + clear), animated(many)}) {
    EXPECT_EQ(drawn(body).pixelColor(8, 8).alpha(), 0);
  }
}

TEST(PictureWebPTest, ADamagedOneIsBlankAndStopsNothing) {
  std::string body = webpOf(quadrants({64, 64}), 100);
  for (std::size_t at = 30; at < body.size(); ++at) body[at] = static_cast<char>(~body[at]);

  drawn(body);
  drawn(lossyWebP(16383, 16383));
  drawn(losslessWebP(16384, 16384));
}

}  // namespace
}  // namespace leafund
