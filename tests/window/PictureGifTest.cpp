#include "tests/support/LoweredLimit.h"
#include "tests/window/PixelsFixture.h"

namespace leafund {
namespace {

using namespace std::string_literals;

// A red and a green pixel above a blue and a yellow one, on a canvas of four by four.
std::string gifWithItsFrameAt(char x, char y) {
  return "GIF89a\4\0\4\0\x91\0\0\xFF\0\0\0\xFF\0\0\0\xFF\xFF\xFF\0,"s + x + '\0' + y +
         "\0\2\0\2\0\0\2\3\x44\x34\5\0;"s;
}

TEST(PictureGifTest, TheFirstFrameLiesWhereItSaysAndAllElseIsClear) {
  const QImage image = drawn(gifWithItsFrameAt(1, 2), {4, 4});

  EXPECT_TRUE(shows(image, 1, 2, Qt::red));
  EXPECT_TRUE(shows(image, 2, 2, Qt::green));
  EXPECT_TRUE(shows(image, 1, 3, Qt::blue));
  EXPECT_TRUE(shows(image, 2, 3, QColor(255, 255, 0)));
  for (const QPoint clear : {QPoint(0, 0), QPoint(0, 2), QPoint(3, 3), QPoint(1, 1)}) {
    EXPECT_EQ(image.pixelColor(clear).alpha(), 0) << clear.x() << clear.y();
  }
}

TEST(PictureGifTest, OfAFrameThatReachesOverTheEdgeTheRestIsDrawn) {
  const QImage image = drawn(gifWithItsFrameAt(3, 3), {4, 4});

  EXPECT_TRUE(shows(image, 3, 3, Qt::red));
  EXPECT_EQ(image.pixelColor(2, 3).alpha(), 0);
  EXPECT_EQ(drawn(gifWithItsFrameAt(9, 9), {4, 4}).pixelColor(3, 3).alpha(), 0);
}

TEST(PictureGifTest, WithoutADescriptorItIsBlankAndTheNextOneIsDrawn) {
#if defined(__SANITIZE_ADDRESS__)
  GTEST_SKIP() << "the sanitizer needs a descriptor to look at an object's type";
#endif
  {
    const LoweredLimit descriptors(RLIMIT_NOFILE, descriptorsInUse());
    EXPECT_TRUE(drawn(gifWithItsFrameAt(0, 0), {4, 4}).isNull());
  }
  EXPECT_FALSE(drawn(gifWithItsFrameAt(0, 0), {4, 4}).isNull());
}

TEST(PictureGifTest, ACanvasOfMoreThan256MegabytesIsBlank) {
  std::string body = gifWithItsFrameAt(0, 0);
  body.replace(6, 4, "\x40\x1F\x41\x1F");  // 8,000 by 8,001

  EXPECT_FALSE(drawn(gifWithItsFrameAt(0, 0), {4, 4}).isNull());
  EXPECT_TRUE(drawn(body, {4, 4}).isNull());
}

}  // namespace
}  // namespace leafund
