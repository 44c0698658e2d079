#include <gtest/gtest.h>

#include <QPainter>

#include "tests/look/MaskedPicture.h"

namespace leafund {
namespace {

const QRect kText(10, 10, 60, 20);

// A page with a "word" of upright strokes in the place of its text, and a box with an outline.
QImage page(int firstStroke, QColor ink = Qt::black, QRect box = {20, 50, 40, 30}) {
  QImage image(100, 100, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  for (int stroke = 0; stroke < 8; ++stroke) {
    painter.fillRect(firstStroke + 6 * stroke, 12, 2, 14, ink);
  }
  painter.setPen(Qt::darkGreen);
  painter.drawRect(box);
  return image;
}

bool isTheSamePage(const QImage& now) {
  return isTheSame(*maskedDifferenceOf(page(12), now, {kText}));
}

TEST(MaskedPictureTest, LettersMayFallOtherwiseInTheirPlace) {
  EXPECT_TRUE(isTheSamePage(page(12)));
  EXPECT_TRUE(isTheSamePage(page(15)));
}

TEST(MaskedPictureTest, LettersOfAnotherColourAreADifference) {
  EXPECT_FALSE(isTheSamePage(page(12, Qt::red)));
}

TEST(MaskedPictureTest, MissingLettersAreADifference) {
  EXPECT_FALSE(isTheSamePage(page(12, Qt::white)));
}

TEST(MaskedPictureTest, LettersBesideTheirPlaceAreADifference) {
  EXPECT_FALSE(isTheSamePage(page(2)));
}

TEST(MaskedPictureTest, AnOutlineMayLieOnePixelOffAndNotTwo) {
  EXPECT_TRUE(isTheSamePage(page(12, Qt::black, {20, 51, 40, 30})));
  EXPECT_FALSE(isTheSamePage(page(12, Qt::black, {20, 52, 40, 30})));
}

TEST(MaskedPictureTest, AnOutlineThatIsMissingOrNewIsADifference) {
  EXPECT_FALSE(isTheSamePage(page(12, Qt::black, {})));
  EXPECT_FALSE(isTheSame(*maskedDifferenceOf(page(12, Qt::black, {}), page(12), {kText})));
}

TEST(MaskedPictureTest, PicturesOfTwoSizesCannotBeCompared) {
  EXPECT_FALSE(maskedDifferenceOf(page(12), page(12).copy(0, 0, 99, 100), {kText}));
}

}  // namespace
}  // namespace leafund
