#include <gtest/gtest.h>

#include <QBuffer>
#include <QColor>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>
#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string>

#include "platform/qt/PicturePixels.h"

namespace leafund {
namespace {

constexpr auto stretch = UIViewContentMode::ScaleToFill;
constexpr auto cover = UIViewContentMode::ScaleAspectFill;

// A quarter each of red, green, blue and yellow: upper left, upper right, lower left, lower right.
QImage quadrants(QSize size) {
  QImage image(size, QImage::Format_RGB32);
  QPainter painter(&image);
  const int x = size.width() / 2;
  const int y = size.height() / 2;
  painter.fillRect(0, 0, x, y, Qt::red);
  painter.fillRect(x, 0, size.width() - x, y, Qt::green);
  painter.fillRect(0, y, x, size.height() - y, Qt::blue);
  painter.fillRect(x, y, size.width() - x, size.height() - y, Qt::yellow);
  return image;
}

NSData written(const QImage& image, const char* format) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  if (!QImageWriter(&buffer, format).write(image)) return nullptr;
  return std::make_shared<const std::string>(bytes.toStdString());
}

std::shared_ptr<const UIImage> picture(QSize size, const char* format = "jpeg") {
  return UIImage::initWithData(written(quadrants(size), format));
}

std::shared_ptr<const UIImage> redrawn(const std::shared_ptr<const UIImage>& image, CGSize size,
                                       double scale = 1) {
  return UIImage::withDrawing({.size = size,
                               .opaque = false,
                               .scale = scale,
                               .strokes = {{image, {0, 0, size.width, size.height}}}});
}

// How far two colours are apart, in the channel in which they differ most.
int difference(QColor one, QColor other) {
  return std::max({std::abs(one.red() - other.red()), std::abs(one.green() - other.green()),
                   std::abs(one.blue() - other.blue()), std::abs(one.alpha() - other.alpha())});
}

int greatestDifference(const QImage& one, const QImage& other) {
  int greatest = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      greatest = std::max(greatest, difference(one.pixelColor(x, y), other.pixelColor(x, y)));
    }
  }
  return greatest;
}

testing::AssertionResult shows(const QImage& image, int x, int y, QColor colour, int within = 12) {
  const QColor there = image.pixelColor(x, y);
  if (difference(there, colour) <= within) return testing::AssertionSuccess();
  return testing::AssertionFailure()
         << x << ", " << y << " is " << there.name(QColor::HexArgb).toStdString();
}

// That every quarter has its colour right up to the outer edges and nearly up to the middle.
void expectQuadrants(const QImage& image) {
  const int right = image.width() - 1;
  const int lower = image.height() - 1;
  const int x = right / 2;
  const int y = lower / 2;
  constexpr int blend = 6;
  for (const auto& [column, row] : {std::pair{0, 0}, {x - blend, y - blend}}) {
    EXPECT_TRUE(shows(image, column, row, Qt::red));
    EXPECT_TRUE(shows(image, right - column, row, Qt::green));
    EXPECT_TRUE(shows(image, column, lower - row, Qt::blue));
    EXPECT_TRUE(shows(image, right - column, lower - row, Qt::yellow));
  }
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

// A little-endian Exif segment that says one thing: "turn by a quarter" (orientation 6).
std::string withQuarterTurn(const std::string& jpeg) {
  using namespace std::string_literals;
  const std::string tiff = "II*\0\x08\0\0\0\x01\0\x12\x01\x03\0\x01\0\0\0\x06\0\0\0\0\0\0\0"s;
  const std::string exif = "Exif\0\0"s + tiff;
  const std::string length{'\0', static_cast<char>(exif.size() + 2)};
  return jpeg.substr(0, 2) + "\xFF\xE1" + length + exif + jpeg.substr(2);
}

TEST(PicturePixelsTest, ARotationThatThePictureTellsIsNotApplied) {
  const auto turned = withQuarterTurn(*written(quadrants({640, 480}), "jpeg"));
  QByteArray bytes = QByteArray::fromStdString(turned);
  QBuffer buffer(&bytes);
  ASSERT_EQ(QImageReader(&buffer, "jpeg").transformation(),
            QImageIOHandler::TransformationRotate90);

  const auto recipe = UIImage::initWithData(std::make_shared<const std::string>(turned));

  expectQuadrants(picturePixels(*recipe, {128, 128}, stretch));
}

TEST(PicturePixelsTest, AJpegThatWasCutShortShowsItsBeginning) {
  // Random colours are hard to pack, so that the cut falls in the middle of the picture.
  QImage noise = quadrants({640, 480});
  std::srand(1);
  for (int y = 240; y < 480; ++y) {
    for (int x = 0; x < 640; ++x) noise.setPixel(x, y, static_cast<QRgb>(std::rand()));
  }
  const NSData whole = written(noise, "jpeg");
  const auto cut = UIImage::initWithData(
      std::make_shared<const std::string>(whole->substr(0, whole->size() / 2)));
  ASSERT_TRUE(cut);

  const QImage image = picturePixels(*cut, {128, 128}, stretch);

  ASSERT_EQ(image.size(), QSize(128, 128));
  EXPECT_TRUE(shows(image, 10, 10, Qt::red));
  EXPECT_TRUE(shows(image, 117, 10, Qt::green));
  EXPECT_TRUE(shows(image, 10, 120, QColor(128, 128, 128)));
}

TEST(PicturePixelsTest, APictureWithAHeaderAloneGivesNothingOrGrey) {
  for (const char* format : {"jpeg", "png"}) {
    const NSData whole = written(quadrants({64, 64}), format);
    std::shared_ptr<const UIImage> shortest;
    for (std::size_t length = 0; length <= whole->size() && !shortest; ++length) {
      shortest = UIImage::initWithData(std::make_shared<std::string>(whole->substr(0, length)));
    }
    ASSERT_TRUE(shortest);
    const QImage image = picturePixels(*shortest, {16, 16}, stretch);
    EXPECT_TRUE(image.isNull() || shows(image, 8, 8, QColor(128, 128, 128))) << format;
  }
}

TEST(PicturePixelsTest, AHeaderThatClaimsAHugePictureIsNoPicture) {
  std::string huge = *written(quadrants({64, 64}), "jpeg");
  const std::size_t frame = huge.find("\xFF\xC0");
  ASSERT_NE(frame, std::string::npos);
  huge.replace(frame + 5, 4, "\xFD\xE8\xFD\xE8");  // 65,000 by 65,000

  EXPECT_FALSE(UIImage::initWithData(std::make_shared<const std::string>(huge)));
}

TEST(PicturePixelsTest, TheReaderRefusesWhatWouldTakeMoreThan128Megabytes) {
  EXPECT_EQ(QImageReader::allocationLimit(), 128);
}

TEST(PicturePixelsTest, ADrawingOfVectorsGivesNothing) {
  const std::string svg =
      "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'>"
      "<image href='/etc/hostname' width='9' height='9'/></svg>";

  EXPECT_FALSE(UIImage::initWithData(std::make_shared<const std::string>(svg)));
}

TEST(PicturePixelsTest, ARedrawnPictureIsThatPictureStretched) {
  const auto original = picture({640, 480});
  const auto square = redrawn(original, {128, 128}, 2);
  for (const QSize size : {QSize(128, 128), QSize(256, 256), QSize(96, 64)}) {
    const QImage expected = picturePixels(*original, size, stretch);
    EXPECT_EQ(picturePixels(*square, size, stretch), expected);
    EXPECT_EQ(picturePixels(*redrawn(square, {50, 50}), size, stretch), expected);
  }
}

TEST(PicturePixelsTest, ARedrawnPictureCoversByItsMiddleInItsNewProportions) {
  const auto square = redrawn(picture({640, 480}), {128, 128});

  const QImage image = picturePixels(*square, {60, 120}, cover);

  ASSERT_EQ(image.size(), QSize(60, 120));
  const QImage whole = picturePixels(*square, {120, 120}, stretch);
  EXPECT_LE(greatestDifference(image, whole.copy(30, 0, 60, 120)), 2);
}

TEST(PicturePixelsTest, ADrawingShowsItsStrokesInOrderWhereTheyWereDrawn) {
  const auto red = UIImage::initWithData(written(quadrants({2, 2}).copy(0, 0, 1, 1), "png"));
  const auto blue = UIImage::initWithData(written(quadrants({2, 2}).copy(0, 1, 1, 1), "png"));
  const auto drawing =
      UIImage::withDrawing({.size = {100, 50},
                            .opaque = false,
                            .scale = 1,
                            .strokes = {{red, {0, 0, 60, 50}}, {blue, {40, 0, 40, 50}}}});

  const QImage image = picturePixels(*drawing, {200, 200}, stretch);

  EXPECT_TRUE(shows(image, 40, 100, Qt::red));
  EXPECT_TRUE(shows(image, 100, 100, Qt::blue));
  EXPECT_EQ(image.pixelColor(180, 100).alpha(), 0);
}

TEST(PicturePixelsTest, AnOpaqueDrawingIsBlackWhereNothingWasDrawn) {
  const auto drawing = UIImage::withDrawing({.size = {10, 10}, .opaque = true, .strokes = {}});

  EXPECT_TRUE(shows(picturePixels(*drawing, {8, 8}, stretch), 4, 4, Qt::black, 0));
}

TEST(PicturePixelsTest, NoPixelsAreMadeForAnEmptySize) {
  for (const QSize size : {QSize(), QSize(0, 10), QSize(10, 0), QSize(-1, 5)}) {
    EXPECT_TRUE(picturePixels(*picture({64, 64}), size, stretch).isNull());
  }
}

}  // namespace
}  // namespace leafund
