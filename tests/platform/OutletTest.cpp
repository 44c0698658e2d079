#include <gtest/gtest.h>

#include "platform/uikit/Outlet.h"
#include "platform/uikit/Scene.h"

namespace leafund {
namespace {

class Badge : public UIViewController {
 public:
  Outlet<UILabel> nameLabel{this, "nameLabel"};
  StrongOutlet<UIView> frameView{this, "frameView"};
};

using Fill = std::function<void(Scene<Badge>&, Badge&)>;

void connectAll(Scene<Badge>& scene, Badge& badge) {
  scene.label(badge.nameLabel, "Wren");
  badge.frameView.connect(std::make_shared<UIView>());
}

UIStoryboard badges(Fill fill) {
  return UIStoryboard("Badge",
                      {{"Badge", [] { return std::make_shared<Badge>(); },
                        [fill = std::move(fill)](UIViewController& controller) {
                          auto& badge = static_cast<Badge&>(controller);
                          Scene<Badge> scene(badge);
                          fill(scene, badge);
                        }}},
                      {});
}

std::shared_ptr<Badge> make(const UIStoryboard& storyboard) {
  return std::static_pointer_cast<Badge>(storyboard.instantiateInitialViewController());
}

TEST(OutletTest, AnOutletIsUnconnectedBeforeTheLoadAndReachesItsViewAfterIt) {
  const auto storyboard = badges(connectAll);
  const auto badge = make(storyboard);
  EXPECT_FALSE(badge->nameLabel.connected());
  badge->view();
  EXPECT_TRUE(badge->nameLabel.connected());
  EXPECT_EQ(badge->nameLabel->text(), "Wren");
  EXPECT_EQ(badge->nameLabel.get()->name(), "nameLabel");
  EXPECT_EQ(badge->nameLabel.name(), "nameLabel");
}

TEST(OutletTest, AnOutletDoesNotKeepItsViewAlive) {
  const auto storyboard = badges(connectAll);
  const auto badge = make(storyboard);
  badge->view();
  badge->nameLabel.get()->removeFromSuperview();
  EXPECT_FALSE(badge->nameLabel.connected());
}

TEST(OutletTest, AViewReachedThroughAnOutletLivesToTheEndOfTheExpression) {
  const auto storyboard = badges(connectAll);
  const auto badge = make(storyboard);
  badge->view();
  const std::weak_ptr<UIResponder> label = badge->nameLabel.get();
  EXPECT_FALSE((badge->nameLabel->removeFromSuperview(), label.expired()));
  EXPECT_TRUE(label.expired());
}

TEST(OutletTest, AStrongOutletKeepsItsView) {
  const auto storyboard = badges(connectAll);
  const auto badge = make(storyboard);
  EXPECT_FALSE(badge->frameView.connected());
  EXPECT_EQ(badge->frameView.get(), nullptr);
  badge->view();
  EXPECT_TRUE(badge->frameView.connected());
  EXPECT_EQ(badge->frameView.get().use_count(), 1);
}

TEST(OutletTest, OutletsAreConnectedAnewWhenTheViewLoadsAnew) {
  const auto storyboard = badges(connectAll);
  const auto badge = make(storyboard);
  badge->view();
  badge->nameLabel->setText("Robin");
  badge->releaseView();
  EXPECT_FALSE(badge->nameLabel.connected());
  badge->view();
  EXPECT_EQ(badge->nameLabel->text(), "Wren");
}

TEST(OutletTest, AScreenWithoutASceneMayLeaveItsOutletsUnconnected) {
  const auto badge = std::make_shared<Badge>();
  badge->view();
  EXPECT_FALSE(badge->nameLabel.connected());
}

TEST(OutletDeathTest, UsingAnAbsentOutletIsFatalAndSaysWhichOneOfWhichScreen) {
  const auto storyboard = badges(connectAll);
  const auto badge = make(storyboard);
  constexpr auto line = "Leafund stopped: Badge: the outlet nameLabel is absent";
  EXPECT_DEATH(badge->nameLabel->setText("x"), line);
  EXPECT_DEATH(badge->nameLabel.get(), line);
  badge->view();
  badge->releaseView();
  EXPECT_DEATH(badge->nameLabel->setText("x"), line);
}

TEST(OutletTest, AnOutletThatASceneLeavesUnconnectedIsNamedAndStopsNoLoad) {
  const auto storyboard =
      badges([](Scene<Badge>& scene, Badge& badge) { scene.label(badge.nameLabel); });
  const auto badge = make(storyboard);
  badge->view();
  EXPECT_EQ(badge->unconnectedOutlets(), std::vector<std::string>{"frameView"});
  const auto whole = badges(connectAll);
  const auto connected = make(whole);
  connected->view();
  EXPECT_TRUE(connected->unconnectedOutlets().empty());
}

TEST(OutletDeathTest, AnOutletThatASceneLeavesUnconnectedIsFatalWhenItIsUsed) {
  const auto storyboard = badges([](Scene<Badge>&, Badge&) {});
  const auto badge = make(storyboard);
  badge->view();
  EXPECT_DEATH(badge->nameLabel->setText("x"),
               "Leafund stopped: Badge: the outlet nameLabel is absent");
}

}  // namespace
}  // namespace leafund
