#include "platform/graphics/DrawingContext.h"
#include "tests/contract/ContractTest.h"

namespace leafund {
namespace {

const auto kAccent = UIColor::initWithRedGreenBlueAlpha(83.0 / 255, 134.0 / 255, 47.0 / 255, 1.0);

using DrawingContract = ContractTest;
using AppearanceContract = ContractTest;

TEST_F(DrawingContract, EachContextStaysOnTheStackOfItsThread) {
  const auto before = drawingContextCount();
  for (int i = 0; i < 5; ++i) UIGraphicsBeginImageContextWithOptions({128, 128}, false, 0);
  EXPECT_EQ(drawingContextCount(), before + 5);
  settle();
  EXPECT_EQ(drawingContextCount(), before + 5);
}

TEST_F(DrawingContract, AScaleOf0IsTheScreensAndAnyOtherIsTaken) {
  UIGraphicsBeginImageContextWithOptions({128, 64}, false, 0);
  const auto image = UIGraphicsGetImageFromCurrentImageContext();
  EXPECT_GT(underTest->host().screenScale(), 0);
  EXPECT_EQ(image->scale(), underTest->host().screenScale());
  EXPECT_EQ(image->size(), (CGSize{128, 64}));
  UIGraphicsBeginImageContextWithOptions({128, 64}, false, 1.5);
  EXPECT_EQ(UIGraphicsGetImageFromCurrentImageContext()->scale(), 1.5);
}

TEST_F(DrawingContract, ThePictureOfTheTopContextIsTheOneDrawnIntoIt) {
  const auto picture = UIImage::withDrawing({{4, 4}, false, 1, {}});
  UIGraphicsBeginImageContextWithOptions({128, 128}, false, 0);
  picture->drawInRect({0, 0, 128, 128});
  const auto image = UIGraphicsGetImageFromCurrentImageContext();
  ASSERT_EQ(image->drawing()->strokes.size(), 1U);
  EXPECT_EQ(image->drawing()->strokes[0].image, picture);
}

TEST_F(AppearanceContract, TheTabBarMadeAfterTheLaunchShowsTheAccentColour) {
  signIn();
  const auto bar = std::static_pointer_cast<UITabBar>(view("tabBar"));
  EXPECT_EQ(bar->tintColor(), kAccent);
  ASSERT_EQ(bar->subviews().size(), 4U);
  for (const auto& item : bar->subviews()) {
    EXPECT_EQ(std::static_pointer_cast<UITabBarItem>(item)->selectedTitleColor(), kAccent);
  }
}

}  // namespace
}  // namespace leafund
