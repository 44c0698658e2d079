#include "tests/window/PixelsFixture.h"

namespace leafund {
namespace {

using namespace std::string_literals;

// What a camera says in Exif with this one entry.
std::string orientedTiff(int orientation) {
  return "II*\0\x08\0\0\0\x01\0\x12\x01\x03\0\x01\0\0\0"s + static_cast<char>(orientation) +
         "\0\0\0\0\0\0\0"s;
}

std::string withExif(const std::string& jpeg, int orientation) {
  const std::string exif = "Exif\0\0"s + orientedTiff(orientation);
  return jpeg.substr(0, 2) + "\xFF\xE1\0"s + static_cast<char>(2 + exif.size()) + exif +
         jpeg.substr(2);
}

// Turned and mirrored so that its first row and column lie where Exif says of that orientation.
QImage stored(const QImage& upright, int orientation) {
  const QImage turned = upright.transformed(QTransform(0, 1, 1, 0, 0, 0));
  switch (orientation) {
    case 2:
      return upright.mirrored(true, false);
    case 3:
      return upright.mirrored(true, true);
    case 4:
      return upright.mirrored(false, true);
    case 5:
      return turned;
    case 6:
      return turned.mirrored(false, true);
    case 7:
      return turned.mirrored(true, true);
    case 8:
      return turned.mirrored(true, false);
    default:
      return upright;
  }
}

TEST(PictureUprightTest, EveryOrientationIsDrawnUpright) {
  for (int orientation = 1; orientation <= 8; ++orientation) {
    SCOPED_TRACE(orientation);
    const auto jpeg = *written(stored(quadrants({64, 48}), orientation), "jpeg");
    const auto recipe =
        UIImage::initWithData(std::make_shared<const std::string>(withExif(jpeg, orientation)));
    ASSERT_EQ(recipe->size(), (CGSize{64, 48}));

    expectQuadrants(picturePixels(*recipe, {64, 48}, stretch));
    expectQuadrants(picturePixels(*recipe, {128, 128}, stretch));
    expectQuadrants(picturePixels(*recipe, {40, 40}, cover));
  }
}

// Qt reads the orientation of a JPEG, too, and another way.
TEST(PictureUprightTest, TheWayItIsTurnedIsWhatAnotherReaderMakesOfIt) {
  for (int orientation = 1; orientation <= 8; ++orientation) {
    const std::string body = withExif(*written(quadrants({64, 48}), "jpeg"), orientation);
    QByteArray bytes = QByteArray::fromStdString(body);
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, "jpeg");
    reader.setAutoTransform(true);
    const QImage expected = reader.read();

    const auto recipe = UIImage::initWithData(std::make_shared<const std::string>(body));
    const QImage image = picturePixels(*recipe, expected.size(), stretch);

    EXPECT_LE(greatestDifference(image, expected), 2) << orientation;
  }
}

}  // namespace
}  // namespace leafund
