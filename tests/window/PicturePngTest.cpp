#include <zlib.h>

#include <vector>

#include "tests/platform/PictureBytes.h"
#include "tests/support/ProcessMemory.h"
#include "tests/window/PixelsFixture.h"

namespace leafund {
namespace {

using namespace picturebytes;

std::string packed(const std::string& rows) {
  std::string bytes(compressBound(static_cast<uLong>(rows.size())), '\0');
  uLongf length = static_cast<uLongf>(bytes.size());
  compress(reinterpret_cast<Bytef*>(bytes.data()), &length,
           reinterpret_cast<const Bytef*>(rows.data()), static_cast<uLong>(rows.size()));
  return bytes.substr(0, length);
}

// Colours of 16 bits, of which one is clear.
std::string deepPngWithAClearColour(unsigned side) {
  std::string rows;
  for (unsigned y = 0; y < side; ++y) {
    rows += byte(0);
    for (unsigned x = 0; x < side; ++x) {
      for (const unsigned light : {0x1234U, 0x5678U, x < side / 2 ? 0x9ABCU : 0x9ABDU}) {
        rows += big16(light);
      }
    }
  }
  const std::string header =
      chunk("IHDR", big32(side) + big32(side) + byte(16) + byte(2) + std::string(3, '\0'));
  return pngStart + header + chunk("tRNS", big16(0x1234) + big16(0x5678) + big16(0x9ABC)) +
         chunk("IDAT", packed(rows)) + chunk("IEND", "");
}

TEST(PicturePngTest, AClearColourOf16BitsIsClearAndTheOneBesideItIsNot) {
  const QImage image = drawn(deepPngWithAClearColour(32), {32, 32});
  ASSERT_FALSE(image.isNull());
  for (int y = 0; y < 32; ++y) {
    for (int x = 0; x < 32; ++x) {
      const QColor colour = x < 16 ? QColor(0, 0, 0, 0) : QColor(0x12, 0x56, 0x9A);
      ASSERT_TRUE(shows(image, x, y, colour, 1));
    }
  }
}

TEST(PicturePngTest, WordsAreNotUnpacked) {
  // 480 MB of words in half a megabyte.
  const std::string words = std::string("k\0\0", 3) + packed(std::string(7'500'000, 'x'));
  std::string body = *written(quadrants({64, 64}), "png");
  std::string all;
  for (int each = 0; each < 64; ++each) all += chunk("zTXt", words);
  body.insert(body.find("IDAT") - 4, all);
  const long before = kilobytes("VmHWM");

  expectQuadrants(drawn(body, {64, 64}));

  EXPECT_LT(kilobytes("VmHWM") - before, 64'000);
}

TEST(PicturePngTest, RowsOfMoreThan350MegabytesAreBlank) {
  std::string body = *written(quadrants({64, 64}), "png");
  // Sixteen bits a channel, four channels: 400 MB.
  const std::string header = big32(10'000) + big32(5'000) + byte(16) + byte(6);
  body.replace(8, 25, chunk("IHDR", header + std::string(3, '\0')));
  const long before = kilobytes("VmHWM");

  EXPECT_TRUE(drawn(body, {64, 64}).isNull());

  EXPECT_LT(kilobytes("VmHWM") - before, 64'000);
}

// 234 MB, of which one copy is too many, also a smaller one.
TEST(PicturePngTest, OfALongOneOnlyTheMiddleIsScaledAndTurned) {
  const std::string rows(std::size_t{65'001} * 900, '\0');
  const std::string header = big32(65'000) + big32(900) + byte(8) + byte(0);
  const auto body = std::make_shared<const std::string>(
      pngStart + chunk("IHDR", header + std::string(3, '\0')) + chunk("eXIf", exif(6)) +
      chunk("IDAT", packed(rows)) + chunk("IEND", ""));
  const auto recipe = UIImage::initWithData(body);
  ASSERT_EQ(recipe->size(), (CGSize{900, 65'000}));
  const long before = kilobytes("VmHWM");

  const QImage image = picturePixels(*recipe, {800, 800}, cover);

  EXPECT_EQ(image.size(), QSize(800, 800));
  EXPECT_TRUE(shows(image, 400, 400, Qt::black));
  EXPECT_LT(kilobytes("VmHWM") - before, 300'000);  // 234, and what a sanitizer adds
}

TEST(PicturePngTest, EveryKindThatQtWritesIsDrawn) {
  for (const auto format : {QImage::Format_Mono, QImage::Format_Indexed8, QImage::Format_Grayscale8,
                            QImage::Format_Grayscale16, QImage::Format_RGB32, QImage::Format_ARGB32,
                            QImage::Format_RGBX64, QImage::Format_RGBA64}) {
    const QImage picture = quadrants({64, 64}).convertToFormat(format);
    const auto recipe = UIImage::initWithData(written(picture, "png"));
    const QImage image = picturePixels(*recipe, {64, 64}, stretch);
    EXPECT_LE(greatestDifference(image, picture.convertToFormat(QImage::Format_ARGB32)), 1)
        << format;
  }
}

// Random colours below are hard to pack, so that most cuts fall into them.
std::string restlessPng() {
  QImage picture = quadrants({128, 128});
  std::srand(1);
  for (int y = 32; y < 128; ++y) {
    for (int x = 0; x < 128; ++x) picture.setPixel(x, y, static_cast<QRgb>(std::rand()));
  }
  return *written(picture, "png");
}

TEST(PicturePngTest, WhateverIsCutOffTheRestIsDrawn) {
  const std::string body = restlessPng();
  for (const int percent : {25, 50, 75, 95}) {
    const QImage image =
        drawn(body.substr(0, body.size() * static_cast<std::size_t>(percent) / 100), {128, 128});
    ASSERT_FALSE(image.isNull());
    EXPECT_TRUE(shows(image, 10, 10, Qt::red)) << percent;
    EXPECT_EQ(image.pixelColor(10, 127).alpha(), 0) << percent;
  }
}

TEST(PicturePngTest, NothingIsSaidOfADamagedPicture) {
  std::string damaged = restlessPng();
  damaged[damaged.size() / 2] ^= 1;
  testing::internal::CaptureStderr();

  const QImage image = drawn(damaged, {128, 128});

  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_TRUE(shows(image, 10, 10, Qt::red));
}

TEST(PicturePngTest, WhatWouldTakeMoreThan256MegabytesIsBlank) {
  const auto claims = [](unsigned width, unsigned height) {
    return pngStart + imageHeader(width, height) + chunk("IDAT", packed("")) + chunk("IEND", "");
  };

  EXPECT_TRUE(drawn(claims(8001, 8000), {16, 16}).isNull());
  EXPECT_TRUE(drawn(claims(65535, 65535), {16, 16}).isNull());
}

// With these chunks before its pixels, all of which are of that grey.
std::string greyPng(char light, const std::string& chunks) {
  const std::string row = byte(0) + std::string(16, light);
  std::string rows;
  for (int y = 0; y < 16; ++y) rows += row;
  const std::string header =
      chunk("IHDR", big32(16) + big32(16) + byte(8) + byte(0) + std::string(3, '\0'));
  return pngStart + header + chunks + chunk("IDAT", packed(rows)) + chunk("IEND", "");
}

TEST(PicturePngTest, ItsGammaCountsUnlessItIsSRgb) {
  const auto lightOf = [](const std::string& chunks) {
    return drawn(greyPng(55, chunks), {16, 16}).pixelColor(8, 8).red();
  };
  const std::string linear = chunk("gAMA", big32(100'000));

  EXPECT_EQ(lightOf(""), 55);
  EXPECT_NEAR(lightOf(linear), 128, 1);  // 1.055 * (55 / 255) ^ (1 / 2.4) - 0.055, of 255
  EXPECT_EQ(lightOf(chunk("gAMA", big32(45'455))), 55);
  EXPECT_EQ(lightOf(chunk("sRGB", byte(0)) + linear), 55);
  // None that a screen could have.
  for (const unsigned gamma : {0U, 1U, 15U, 625'000'001U, 0x7fffffffU}) {
    EXPECT_EQ(lightOf(chunk("gAMA", big32(gamma))), 55) << gamma;
  }
}

}  // namespace
}  // namespace leafund
