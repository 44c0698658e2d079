#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/uikit/UIView.h"
#include "tests/support/HeadlessApplication.h"
#include "tests/support/ProbeScreen.h"
#include "tests/support/ProbeSkin.h"
#include "tests/support/ProcessorTime.h"

namespace leafund {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const auto kWhite = UIColor::initWithRedGreenBlueAlpha(1, 1, 1, 1);

TEST(UIViewTest, ANewViewIsSeenAndPlain) {
  const UIView view({1, 2, 3, 4});
  EXPECT_EQ(view.frame(), (CGRect{1, 2, 3, 4}));
  EXPECT_FALSE(view.hidden());
  EXPECT_THAT(view.subviews(), IsEmpty());
  EXPECT_EQ(view.superview(), nullptr);
  EXPECT_EQ(view.layer(), CALayer());
  EXPECT_EQ(view.name(), "");
  EXPECT_EQ(view.accessibilityLabel(), "");
  EXPECT_THAT(view.gestureRecognizers(), IsEmpty());
}

TEST(UIViewTest, ANewLayerPaintsNothingAndCastsItsShadowUpwardsWithoutOpacity) {
  const CALayer layer;
  EXPECT_EQ(layer.backgroundColor(), std::nullopt);
  EXPECT_EQ(layer.borderColor(), std::nullopt);
  EXPECT_EQ(layer.borderWidth(), 0);
  EXPECT_EQ(layer.cornerRadius(), 0);
  EXPECT_EQ(layer.shadowOpacity(), 0);
  EXPECT_EQ(layer.shadowOffset(), (CGSize{0, -3}));
  EXPECT_FALSE(layer.masksToBounds());
}

TEST(UIViewTest, BackgroundAndClippingAreTheLayers) {
  UIView view;
  view.setBackgroundColor(kWhite);
  view.setClipsToBounds(true);
  EXPECT_EQ(view.layer().backgroundColor(), kWhite.CGColor());
  EXPECT_TRUE(view.layer().masksToBounds());
  view.setClipsToBounds(false);
  EXPECT_FALSE(view.layer().masksToBounds());
}

TEST(UIViewTest, SubviewsStandInTheOrderAdded) {
  UIView parent;
  const auto first = std::make_shared<UIView>();
  const auto second = std::make_shared<UIView>();
  parent.addSubview(first);
  parent.addSubview(second);
  EXPECT_THAT(parent.subviews(), ElementsAre(first, second));
  EXPECT_EQ(first->superview(), &parent);
}

TEST(UIViewTest, AddingAViewThatIsThereBringsItToTheFront) {
  UIView parent;
  const auto first = std::make_shared<UIView>();
  const auto second = std::make_shared<UIView>();
  parent.addSubview(first);
  parent.addSubview(second);
  parent.addSubview(first);
  EXPECT_THAT(parent.subviews(), ElementsAre(second, first));
}

TEST(UIViewTest, AddingAViewTakesItFromItsFormerParent) {
  UIView before;
  UIView after;
  const auto view = std::make_shared<UIView>();
  before.addSubview(view);
  after.addSubview(view);
  EXPECT_THAT(before.subviews(), IsEmpty());
  EXPECT_THAT(after.subviews(), ElementsAre(view));
  EXPECT_EQ(view->superview(), &after);
}

TEST(UIViewTest, AViewIsKeptByItsParentAloneAndGoesWhenItIsTakenAway) {
  UIView parent;
  parent.addSubview(std::make_shared<UIView>());
  const std::weak_ptr<UIResponder> child = parent.subviews().front()->weak_from_this();
  EXPECT_FALSE(child.expired());
  parent.subviews().front()->removeFromSuperview();
  EXPECT_TRUE(child.expired());
}

TEST(UIViewTest, TakingAwayAViewWithoutAParentDoesNothing) {
  UIView view;
  view.removeFromSuperview();
  EXPECT_EQ(view.superview(), nullptr);
}

TEST(UIViewTest, AViewThatOutlivesItsParentHasNone) {
  const auto child = std::make_shared<UIView>();
  {
    UIView parent;
    parent.addSubview(child);
  }
  EXPECT_EQ(child->superview(), nullptr);
}

TEST(UIViewTest, SendingToTheBackMovesThatViewAloneWhereverItStands) {
  UIView parent;
  std::vector<std::shared_ptr<UIView>> views;
  for (int i = 0; i < 4; ++i) parent.addSubview(views.emplace_back(std::make_shared<UIView>()));
  parent.sendSubviewToBack(views[3]);
  EXPECT_THAT(parent.subviews(), ElementsAre(views[3], views[0], views[1], views[2]));
  parent.sendSubviewToBack(views[1]);
  EXPECT_THAT(parent.subviews(), ElementsAre(views[1], views[3], views[0], views[2]));
  parent.sendSubviewToBack(views[1]);
  EXPECT_THAT(parent.subviews(), ElementsAre(views[1], views[3], views[0], views[2]));
}

TEST(UIViewTest, SendingAnotherParentsViewToTheBackDoesNothing) {
  UIView parent;
  UIView other;
  const auto own = std::make_shared<UIView>();
  const auto foreign = std::make_shared<UIView>();
  parent.addSubview(own);
  other.addSubview(foreign);
  parent.sendSubviewToBack(foreign);
  EXPECT_THAT(parent.subviews(), ElementsAre(own));
  EXPECT_THAT(other.subviews(), ElementsAre(foreign));
}

TEST(UIViewTest, AMillionCardsGoToTheBackEachInConstantTime) {
  constexpr std::size_t kCards = 1'000'000;
  UIView content;
  const auto label = std::make_shared<UIView>();
  content.addSubview(label);
  std::vector<const UIView*> shown;
  shown.reserve(kCards);
  const double start = processorSeconds();
  for (std::size_t i = 0; i < kCards; ++i) {
    const auto card = std::make_shared<UIView>();
    content.addSubview(card);
    content.sendSubviewToBack(card);
    shown.push_back(card.get());
  }
  // In quadratic time this would take many minutes.
  EXPECT_LT(processorSeconds() - start, 20);
  ASSERT_EQ(content.subviews().size(), kCards + 1);
  EXPECT_EQ(content.subviews().back(), label);
  for (std::size_t i = 0; i < kCards; ++i) {
    ASSERT_EQ(content.subviews()[i].get(), shown[kCards - 1 - i]) << "at place " << i;
  }
}

// One screen, whose root view has a child; both wear skins.
class UIViewInApplicationTest : public testing::Test {
 protected:
  UIViewInApplicationTest() {
    app.shown()->view()->addSubview(child);
    rootSkin = std::make_unique<ProbeSkin>(app.shown()->view());
    childSkin = std::make_unique<ProbeSkin>(child);
  }
  void turn(std::function<void()> work) { app.application->turn(std::move(work)); }

  ProbeLog log;
  UIStoryboard storyboard{"Only", {probeScene(log, "Only")}, {}};
  HeadlessApplication app{storyboard};
  std::shared_ptr<UIView> child = std::make_shared<UIView>();
  std::unique_ptr<ProbeSkin> rootSkin;
  std::unique_ptr<ProbeSkin> childSkin;
};

TEST_F(UIViewInApplicationTest, SeveralChangesInATurnRefreshTheSkinOnce) {
  turn([&] {
    child->setFrame({0, 0, 10, 10});
    child->setHidden(true);
    child->setBackgroundColor(kWhite);
    EXPECT_EQ(childSkin->refreshes, 0);
  });
  EXPECT_EQ(childSkin->refreshes, 1);
  EXPECT_EQ(rootSkin->refreshes, 0);
}

TEST_F(UIViewInApplicationTest, AnEqualValueIsNoChange) {
  turn([&] { child->setFrame(child->frame()); });
  EXPECT_EQ(childSkin->refreshes, 0);
  turn([&] { child->setHidden(true); });
  EXPECT_EQ(childSkin->refreshes, 1);
  turn([&] { child->setHidden(true); });
  EXPECT_EQ(childSkin->refreshes, 1);
}

TEST_F(UIViewInApplicationTest, AViewThatIsShownOnceMoreChangesSoThatAMessageIsSaidAgain) {
  ASSERT_FALSE(child->hidden());
  turn([&] { child->setHidden(false); });
  EXPECT_EQ(childSkin->refreshes, 1);
}

TEST_F(UIViewInApplicationTest, ReadingTheLayerIsNoChangeAndWritingItIs) {
  turn([&] { EXPECT_EQ(std::as_const(*child).layer(), CALayer()); });
  EXPECT_EQ(childSkin->refreshes, 0);
  turn([&] { child->layer().setCornerRadius(2); });
  EXPECT_EQ(childSkin->refreshes, 1);
}

TEST_F(UIViewInApplicationTest, AddingMovingAndTakingAwayChangeTheParent) {
  const auto other = std::make_shared<UIView>();
  turn([&] { app.shown()->view()->addSubview(other); });
  EXPECT_EQ(rootSkin->refreshes, 1);
  turn([&] { app.shown()->view()->sendSubviewToBack(other); });
  EXPECT_EQ(rootSkin->refreshes, 2);
  turn([&] { other->removeFromSuperview(); });
  EXPECT_EQ(rootSkin->refreshes, 3);
}

TEST_F(UIViewInApplicationTest, AViewThatGoesInItsTurnIsNotRefreshed) {
  turn([&] {
    auto passing = std::make_shared<UIView>();
    ProbeSkin skin(passing);
    passing->setHidden(true);
  });
  turn([&] { child->setHidden(true); });
  EXPECT_EQ(childSkin->refreshes, 1);
}

}  // namespace
}  // namespace leafund
