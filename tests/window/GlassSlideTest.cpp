#include "tests/window/GlassFixture.h"

namespace leafund {
namespace {

// What lies on the window while one screen slides over another.
class GlassSlideTest : public GlassTest {
 protected:
  QQuickItem* pageOf(const QString& className) {
    return app.window().contentItem()->findChild<QQuickItem*>(className,
                                                              Qt::FindDirectChildrenOnly);
  }

  const QString kHome = "TabBarVC";
  const QString kCampaign = "OneCampaignViewController";
};

TEST_F(GlassSlideTest, AScreenThatIsWantedBackMidSlideComesFromWhereItIs) {
  signIn();
  app.click(app.require("abc-0"));  // has only begun to slide in
  const double before = pageOf(kHome)->x();
  app.press(Qt::Key_Escape);
  EXPECT_NEAR(pageOf(kHome)->x(), before, 20);
  ASSERT_LT(before + 20, 0.0 + app.window().width() / 3.0);
}

TEST_F(GlassSlideTest, TheScreenThatComesLiesOnTopAndSoDoesTheOneThatGoesBack) {
  signIn();
  app.click(app.require("abc-0"));
  EXPECT_GT(pageOf(kCampaign)->z(), pageOf(kHome)->z());
  app.settle();
  app.press(Qt::Key_Escape);
  EXPECT_GT(pageOf(kCampaign)->z(), pageOf(kHome)->z());
}

TEST_F(GlassSlideTest, AScreenThatSlidOutIsGone) {
  signIn();
  click("abc-0");
  app.press(Qt::Key_Escape);
  app.settle();
  EXPECT_TRUE(app.waitUntil([&] { return pageOf(kCampaign) == nullptr; }));
}

}  // namespace
}  // namespace leafund
