#include "platform/uikit/UITableView.h"
#include "platform/uikit/UITableViewCell.h"
#include "tests/window/WindowFixture.h"

namespace leafund {
namespace {

// What lies on the window while one screen slides over another.
class SlideTest : public WindowTest {
 protected:
  QQuickItem* pageOf(const QString& className) {
    return app.window().contentItem()->findChild<QQuickItem*>(className,
                                                              Qt::FindDirectChildrenOnly);
  }

  // No frame passes in it: the slide has only begun.
  void openFirstRow() {
    const auto& table = dynamic_cast<UITableView&>(*app.shown()->view());
    app.application->tap(table.visibleCells().at(0));
  }

  const QString kHome = "TabBarVC";
  const QString kCampaign = "OneCampaignViewController";
};

TEST_F(SlideTest, AScreenThatIsWantedBackMidSlideComesFromWhereItIs) {
  signIn();
  openFirstRow();
  const double before = pageOf(kHome)->x();
  app.application->goBack();
  EXPECT_EQ(pageOf(kHome)->x(), before);
}

TEST_F(SlideTest, TheScreenThatComesLiesOnTopAndSoDoesTheOneThatGoesBack) {
  signIn();
  openFirstRow();
  EXPECT_GT(pageOf(kCampaign)->z(), pageOf(kHome)->z());
  app.settle();
  app.application->goBack();
  EXPECT_GT(pageOf(kCampaign)->z(), pageOf(kHome)->z());
}

// How far a campaign has come is seen to grow, though its screen may have been made before.
TEST_F(SlideTest, TheBarOfAScreenThatComesStartsFromNothing) {
  signIn();
  openFirstRow();
  const auto* bar = pageOf(kCampaign)->findChild<QQuickItem*>("slider");
  ASSERT_NE(bar, nullptr);
  EXPECT_GT(bar->property("goal").toDouble(), 0);
  EXPECT_EQ(bar->property("shown").toDouble(), 0);
}

TEST_F(SlideTest, AScreenThatSlidOutIsGone) {
  signIn();
  click("abc-0");
  app.press(Qt::Key_Escape);
  app.settle();
  EXPECT_TRUE(app.waitUntil([&] { return pageOf(kCampaign) == nullptr; }));
}

}  // namespace
}  // namespace leafund
