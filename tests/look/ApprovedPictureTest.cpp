#include <gtest/gtest.h>

#include "tests/look/ApprovedPicture.h"

namespace leafund {
namespace {

const QColor kGround(243, 247, 239);

QImage sheet() {
  QImage image(100, 100, QImage::Format_RGB32);
  image.fill(kGround);
  return image;
}

TEST(ApprovedPictureTest, APictureIsTheSameAsItself) {
  const auto difference = differenceOf(sheet(), sheet());

  ASSERT_TRUE(difference);
  EXPECT_EQ(difference->greatest, 0);
  EXPECT_TRUE(isTheSame(*difference));
}

TEST(ApprovedPictureTest, AShadeThatNobodySeesIsTheSame) {
  QImage now = sheet();
  now.fill(kGround.lighter(102));

  const auto difference = differenceOf(sheet(), now);

  EXPECT_GT(difference->greatest, 0);
  EXPECT_TRUE(isTheSame(*difference));
}

TEST(ApprovedPictureTest, AnotherColourOnTwoPixelsIn10000IsADifference) {
  QImage now = sheet();
  for (int x = 0; x < 2; ++x) now.setPixelColor(x, 50, Qt::black);

  const auto difference = differenceOf(sheet(), now);

  EXPECT_NEAR(difference->share, 0.0002, 1e-6);
  EXPECT_FALSE(isTheSame(*difference));
  EXPECT_NE(difference->picture.pixel(1, 50), difference->picture.pixel(50, 50));
}

TEST(ApprovedPictureTest, AGroundInAnotherShadeIsADifference) {
  QImage now = sheet();
  now.fill(kGround.darker(105));

  EXPECT_FALSE(isTheSame(*differenceOf(sheet(), now)));
}

TEST(ApprovedPictureTest, PicturesOfTwoSizesCannotBeCompared) {
  EXPECT_FALSE(differenceOf(sheet(), sheet().copy(0, 0, 99, 100)));
}

TEST(ApprovedPictureTest, APictureIsReadAsItWasSaved) {
  const auto path = std::filesystem::path(testing::TempDir()) / "leafund-saved.png";
  QImage image = sheet();
  image.setPixelColor(3, 4, QColor(1, 2, 3));

  ASSERT_TRUE(save(image, path));

  const auto difference = differenceOf(image, QImage(QString::fromStdString(path.string())));
  std::filesystem::remove(path);
  ASSERT_TRUE(difference);
  EXPECT_EQ(difference->greatest, 0);
}

}  // namespace
}  // namespace leafund
