#include <gtest/gtest.h>

#include "platform/graphics/UIImage.h"
#include "tests/support/Pictures.h"

namespace leafund {
namespace {

NSData data(std::string bytes) { return std::make_shared<const std::string>(std::move(bytes)); }

TEST(UIImageTest, ABodyThatIsAPictureHasItsPixelsAsPoints) {
  const auto body = data(pictureBody(640, 480));
  const auto image = UIImage::initWithData(body);
  ASSERT_NE(image, nullptr);
  EXPECT_EQ(image->size(), (CGSize{640, 480}));
  EXPECT_EQ(image->scale(), 1);
  EXPECT_EQ(image->body(), body);
  EXPECT_EQ(image->drawing(), nullptr);
}

TEST(UIImageTest, WhatIsNoPictureMakesNoImage) {
  EXPECT_EQ(UIImage::initWithData(nullptr), nullptr);
  EXPECT_EQ(UIImage::initWithData(data("")), nullptr);
  EXPECT_EQ(UIImage::initWithData(data("<html>Not Found</html>")), nullptr);
}

TEST(UIImageTest, APictureWhosePixelsAreCutShortIsAPictureStill) {
  auto bytes = pictureBody(8, 8);
  bytes.pop_back();
  EXPECT_NE(UIImage::initWithData(data(bytes)), nullptr);
}

TEST(UIImageTest, ADrawingHasItsSizeAndScaleAndNoBody) {
  const auto image = UIImage::withDrawing({{128, 64}, false, 2, {}});
  EXPECT_EQ(image->size(), (CGSize{128, 64}));
  EXPECT_EQ(image->scale(), 2);
  EXPECT_EQ(image->body(), nullptr);
  ASSERT_NE(image->drawing(), nullptr);
}

TEST(UIImageTest, ADrawingKeepsThePicturesInIt) {
  auto inner = UIImage::withDrawing({{1, 1}, false, 1, {}});
  const std::weak_ptr<const UIImage> kept = inner;
  auto outer = UIImage::withDrawing({{2, 2}, false, 1, {{inner, {0, 0, 2, 2}}}});
  inner.reset();
  EXPECT_FALSE(kept.expired());
  outer.reset();
  EXPECT_TRUE(kept.expired());
}

}  // namespace
}  // namespace leafund
