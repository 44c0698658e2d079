#include <gtest/gtest.h>

#include <thread>

#include "platform/graphics/DrawingContext.h"
#include "platform/headless/HeadlessHost.h"

namespace leafund {
namespace {

class DrawingContextTest : public testing::Test {
 protected:
  static std::shared_ptr<const UIImage> square() {
    return UIImage::withDrawing({{10, 10}, false, 1, {}});
  }
  HeadlessHost host{{390, 844}, 3};
  const std::size_t before = drawingContextCount();
};

TEST_F(DrawingContextTest, WithoutAContextThereIsNoImageAndDrawingDoesNothing) {
  std::thread([] {
    EXPECT_EQ(drawingContextCount(), 0U);
    square()->drawInRect({0, 0, 5, 5});
    EXPECT_EQ(UIGraphicsGetImageFromCurrentImageContext(), nullptr);
  }).join();
}

TEST_F(DrawingContextTest, EachContextStaysPushed) {
  for (int i = 0; i < 3; ++i) UIGraphicsBeginImageContextWithOptions({8, 8}, false, 1);
  EXPECT_EQ(drawingContextCount(), before + 3);
  UIGraphicsGetImageFromCurrentImageContext();
  EXPECT_EQ(drawingContextCount(), before + 3);
}

TEST_F(DrawingContextTest, AScaleOf0IsTheScreens) {
  UIGraphicsBeginImageContextWithOptions({8, 8}, false, 0);
  EXPECT_EQ(UIGraphicsGetImageFromCurrentImageContext()->scale(), 3);
  UIGraphicsBeginImageContextWithOptions({8, 8}, false, 1.5);
  EXPECT_EQ(UIGraphicsGetImageFromCurrentImageContext()->scale(), 1.5);
}

TEST_F(DrawingContextTest, AnImageHoldsWhatWasDrawnIntoTheTopContextInOrder) {
  const auto first = square();
  const auto second = square();
  UIGraphicsBeginImageContextWithOptions({128, 64}, true, 2);
  first->drawInRect({0, 0, 128, 64});
  second->drawInRect({1, 2, 3, 4});
  const auto image = UIGraphicsGetImageFromCurrentImageContext();
  ASSERT_NE(image->drawing(), nullptr);
  EXPECT_EQ(image->size(), (CGSize{128, 64}));
  EXPECT_TRUE(image->drawing()->opaque);
  ASSERT_EQ(image->drawing()->strokes.size(), 2U);
  EXPECT_EQ(image->drawing()->strokes[0].image, first);
  EXPECT_EQ(image->drawing()->strokes[0].rect, (CGRect{0, 0, 128, 64}));
  EXPECT_EQ(image->drawing()->strokes[1].image, second);
  EXPECT_EQ(image->drawing()->strokes[1].rect, (CGRect{1, 2, 3, 4}));
}

TEST_F(DrawingContextTest, ANewContextIsEmptyAndTheOneBelowIsNotDrawnInto) {
  UIGraphicsBeginImageContextWithOptions({8, 8}, false, 1);
  square()->drawInRect({0, 0, 8, 8});
  const auto lower = UIGraphicsGetImageFromCurrentImageContext();
  UIGraphicsBeginImageContextWithOptions({9, 9}, false, 1);
  const auto upper = UIGraphicsGetImageFromCurrentImageContext();
  EXPECT_TRUE(upper->drawing()->strokes.empty());
  square()->drawInRect({0, 0, 9, 9});
  EXPECT_EQ(lower->drawing()->strokes.size(), 1U);
}

TEST_F(DrawingContextTest, AnImageDoesNotChangeWhenMoreIsDrawn) {
  UIGraphicsBeginImageContextWithOptions({8, 8}, false, 1);
  const auto image = UIGraphicsGetImageFromCurrentImageContext();
  square()->drawInRect({0, 0, 8, 8});
  EXPECT_TRUE(image->drawing()->strokes.empty());
}

TEST_F(DrawingContextTest, EachThreadHasAStackOfItsOwn) {
  UIGraphicsBeginImageContextWithOptions({8, 8}, false, 1);
  std::thread([] {
    EXPECT_EQ(drawingContextCount(), 0U);
    UIGraphicsBeginImageContextWithOptions({8, 8}, false, 1);
    EXPECT_EQ(drawingContextCount(), 1U);
  }).join();
  EXPECT_EQ(drawingContextCount(), before + 1);
}

TEST_F(DrawingContextTest, ABuriedContextKeepsNoPictureAlive) {
  auto picture = square();
  const std::weak_ptr<const UIImage> kept = picture;
  UIGraphicsBeginImageContextWithOptions({8, 8}, false, 1);
  picture->drawInRect({0, 0, 8, 8});
  picture.reset();
  EXPECT_FALSE(kept.expired());
  UIGraphicsBeginImageContextWithOptions({8, 8}, false, 1);
  EXPECT_TRUE(kept.expired());
}

TEST_F(DrawingContextTest, AMillionContextsAreCounted) {
  for (int i = 0; i < 1'000'000; ++i) UIGraphicsBeginImageContextWithOptions({8, 8}, false, 1);
  EXPECT_EQ(drawingContextCount(), before + 1'000'000);
}

TEST(DrawingContextDeathTest, TheScreensScaleWithoutAHostIsFatal) {
  EXPECT_DEATH(UIGraphicsBeginImageContextWithOptions({8, 8}, false, 0),
               "Leafund stopped: currentHost: no host is in force");
}

}  // namespace
}  // namespace leafund
