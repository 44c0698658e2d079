#include "tests/support/ProcessMemory.h"
#include "tests/window/PixelsFixture.h"

namespace leafund {
namespace {

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

TEST(PicturePixelsTest, NoRoomIsTakenForWhatAPngOnlyAnnounces) {
  const std::string announced = "\x3D\x01\x01\x01tEXt";  // a gigabyte of words
  std::string body = *written(quadrants({64, 64}), "png");
  const std::size_t end = body.find("IEND");
  ASSERT_NE(end, std::string::npos);
  body.insert(end - 4, announced);
  picturePixels(*picture({64, 64}, "png"), {16, 16}, stretch);
  const long before = kilobytes("VmPeak");  // room that was taken and never filled counts, too
  const auto image = UIImage::initWithData(std::make_shared<const std::string>(body));
  ASSERT_TRUE(image);

  picturePixels(*image, {16, 16}, stretch);

  ASSERT_GT(before, 0);
  EXPECT_LT(kilobytes("VmPeak"), before + 100'000);
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
