#include <QColorSpace>

#include "platform/qt/ColourTransform.h"
#include "tests/window/PixelsFixture.h"

namespace leafund {
namespace {

TEST(PicturePixelsTest, AColourProfileCounts) {
  for (const char* format : {"jpeg", "png"}) {
    QImage picture(64, 64, QImage::Format_RGB32);
    picture.fill(QColor(200, 100, 50));
    picture.setColorSpace(QColorSpace(QColorSpace::DisplayP3));

    const QImage image = drawn(*written(picture, format));

    // By hand, from the matrices of the two spaces.
    EXPECT_TRUE(shows(image, 8, 8, QColor(215, 93, 31), 4)) << format;
  }
}

// A large one would take memory and time that nothing else counts.
TEST(PicturePixelsTest, AProfileOfMoreThanFourMegabytesIsLeftAside) {
  const std::string profile = QColorSpace(QColorSpace::DisplayP3).iccProfile().toStdString();
  const auto isUsed = [&](std::size_t size) {
    const std::string padded = profile + std::string(size - profile.size(), '\0');
    return !ColourTransform::ofProfile(padded, ColourTransform::Pixels::Colours).isNone();
  };
  EXPECT_TRUE(isUsed(4'000'000));
  EXPECT_FALSE(isUsed(4'000'001));
}

TEST(PicturePixelsTest, ALargerPictureIsStretchedAndNotCropped) {
  const QImage image = picturePixels(*picture({640, 480}), {128, 128}, stretch);

  ASSERT_EQ(image.size(), QSize(128, 128));
  expectQuadrants(image);
}

TEST(PicturePixelsTest, EveryFormatIsStretchedToAnySize) {
  for (const char* format : {"jpeg", "png"}) {
    for (const QSize size : {QSize(64, 48), QSize(640, 480), QSize(900, 700), QSize(640, 40),
                             QSize(37, 480), QSize(40, 900)}) {
      SCOPED_TRACE(std::string(format) + " " + std::to_string(size.width()));
      const QImage image = picturePixels(*picture({640, 480}, format), size, stretch);
      ASSERT_EQ(image.size(), size);
      expectQuadrants(image);
    }
  }
}

TEST(PicturePixelsTest, APictureCoversASquareByItsMiddle) {
  const QImage image = picturePixels(*picture({640, 480}), {120, 120}, cover);

  ASSERT_EQ(image.size(), QSize(120, 120));
  expectQuadrants(image);
}

TEST(PicturePixelsTest, CoveringCutsBothSidesEvenlyAndKeepsTheProportions) {
  // A white picture with a black disc in the middle and a red margin to be cut at either side.
  QImage drawn(400, 200, QImage::Format_RGB32);
  drawn.fill(Qt::red);
  QPainter painter(&drawn);
  painter.fillRect(100, 0, 200, 200, Qt::white);
  painter.setBrush(Qt::black);
  painter.drawEllipse(150, 50, 100, 100);
  painter.end();
  const auto recipe = UIImage::initWithData(written(drawn, "png"));

  for (const int side : {100, 200, 600}) {
    const QImage image = picturePixels(*recipe, {side, side}, cover);
    ASSERT_EQ(image.size(), QSize(side, side));
    for (const double at : {0.03, 0.97}) {
      EXPECT_TRUE(shows(image, int(at * side), side / 2, Qt::white)) << side;
      EXPECT_TRUE(shows(image, side / 2, int(at * side), Qt::white)) << side;
    }
    for (const double at : {0.29, 0.71}) {
      EXPECT_TRUE(shows(image, int(at * side), side / 2, Qt::black)) << side;
      EXPECT_TRUE(shows(image, side / 2, int(at * side), Qt::black)) << side;
    }
  }
}

TEST(PicturePixelsTest, CoveringWithAThreadOfAPictureTakesItsMiddle) {
  QImage thread(16384, 1, QImage::Format_RGB32);
  thread.fill(Qt::red);
  for (int x = 8192 - 50; x < 8192 + 50; ++x) thread.setPixelColor(x, 0, Qt::blue);

  const auto recipe = UIImage::initWithData(written(thread, "png"));
  const QImage image = picturePixels(*recipe, {128, 128}, cover);

  ASSERT_EQ(image.size(), QSize(128, 128));
  EXPECT_TRUE(shows(image, 0, 0, Qt::blue));
  EXPECT_TRUE(shows(image, 127, 127, Qt::blue));
}

TEST(PicturePixelsTest, AJpegIsOpaqueAndTheOthersMayNotBe) {
  QImage clear(20, 20, QImage::Format_ARGB32);
  clear.fill(Qt::transparent);
  const auto glass = UIImage::initWithData(written(clear, "png"));
  for (const QSize size : {QSize(10, 10), QSize(20, 20), QSize(50, 30)}) {
    EXPECT_EQ(picturePixels(*picture({20, 20}), size, stretch).format(), QImage::Format_RGB32);
    const QImage image = picturePixels(*glass, size, cover);
    EXPECT_EQ(image.format(), QImage::Format_ARGB32_Premultiplied);
    EXPECT_EQ(image.pixelColor(5, 5).alpha(), 0);
  }
}

TEST(PicturePixelsTest, AGreyJpegIsDrawnLikeAnyOther) {
  const QImage grey = quadrants({64, 64}).convertToFormat(QImage::Format_Grayscale8);
  const auto recipe = UIImage::initWithData(written(grey, "jpeg"));

  const QImage image = picturePixels(*recipe, {32, 32}, stretch);

  EXPECT_EQ(image.format(), QImage::Format_RGB32);
  EXPECT_TRUE(shows(image, 2, 2, grey.pixelColor(2, 2)));
}

// Two by two pixels: red and green above blue and yellow.
constexpr char smallGif[] =
    "GIF89a\x02\0\x02\0\x91\0\0"
    "\xFF\0\0\0\xFF\0\0\0\xFF\xFF\xFF\0"
    ",\0\0\0\0\x02\0\x02\0\0\x02\x03\x44\x34\x05\0;";

TEST(PicturePixelsTest, AGifIsDrawn) {
  const auto recipe =
      UIImage::initWithData(std::make_shared<const std::string>(smallGif, sizeof smallGif - 1));
  ASSERT_TRUE(recipe);

  const QImage image = picturePixels(*recipe, {2, 2}, stretch);

  ASSERT_EQ(image.size(), QSize(2, 2));
  EXPECT_EQ(image.format(), QImage::Format_ARGB32_Premultiplied);
  EXPECT_TRUE(shows(image, 0, 0, QColor(255, 0, 0)));
  EXPECT_TRUE(shows(image, 1, 0, QColor(0, 255, 0)));
  EXPECT_TRUE(shows(image, 0, 1, QColor(0, 0, 255)));
  EXPECT_TRUE(shows(image, 1, 1, QColor(255, 255, 0)));
  EXPECT_EQ(picturePixels(*recipe, {60, 30}, stretch).size(), QSize(60, 30));
}

}  // namespace
}  // namespace leafund
