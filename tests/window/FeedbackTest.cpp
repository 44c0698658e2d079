#include <QElapsedTimer>
#include <set>

#include "tests/window/FingerFixture.h"

namespace leafund {
namespace {

// What the window gives to see while it is used.
class FeedbackTest : public FingerTest {
 protected:
  bool is(const char* name, const char* property) {
    return app.require(name).property(property).toBool();
  }
};

TEST_F(FeedbackTest, AQuickTapIsSeenAtOnceAndForAWhile) {
  signIn();
  const auto where = middleOf("newsTab");
  QElapsedTimer passed;
  passed.start();
  QTest::mousePress(&app.window(), Qt::LeftButton, {}, where);
  EXPECT_TRUE(is("newsTab", "held"));
  QTest::mouseRelease(&app.window(), Qt::LeftButton, {}, where);
  EXPECT_TRUE(is("newsTab", "held") || passed.elapsed() >= 110);  // on a busy machine
  ASSERT_TRUE(app.waitUntil([&] { return !is("newsTab", "held"); }));
  EXPECT_GE(passed.elapsed(), 110);
}

TEST_F(FeedbackTest, AFingerThatScrollsAListHoldsNoRow) {
  signIn();
  for (const int way : {12, -12}) {  // at its top the list takes no finger
    put({200, 400});
    for (int step = 1; step <= 5; ++step) {
      drawTo({200, 400 + step * way});
      for (const auto* row : {"abc-0", "abc-1", "abc-2"}) EXPECT_FALSE(is(row, "held")) << row;
    }
    lift({200, 400 + 5 * way});
  }
}

TEST_F(FeedbackTest, APointerTintsWhatItIsOnAndAFingerDoesNot) {
  const auto button = middleOf("signUpButton");
  QTest::mouseMove(&app.window(), {5, 5});
  put(button);
  EXPECT_FALSE(is("signUpButton", "hovered"));
  lift(button);
  app.settle();
  EXPECT_EQ(app.shown()->className(), "SignUpVC");
  app.press(Qt::Key_Escape);
  app.settle();
  QTest::mouseMove(&app.window(), button);
  EXPECT_TRUE(app.waitUntil([&] { return is("signUpButton", "hovered"); }));
  QTest::mouseMove(&app.window(), {5, 5});
  EXPECT_TRUE(app.waitUntil([&] { return !is("signUpButton", "hovered"); }));
}

TEST_F(FeedbackTest, ATabThatComesFadesIn) {
  signIn();
  const auto& tabs = app.require("tabs");
  std::set<double> shares;
  QObject context;
  QObject::connect(&tabs, &QQuickItem::opacityChanged, &context,
                   [&] { shares.insert(tabs.opacity()); });
  click("newsTab");
  ASSERT_TRUE(app.waitUntil([&] { return tabs.opacity() == 1; }));
  EXPECT_GE(shares.size(), 3U);
}

TEST_F(FeedbackTest, TheRoomForAReasonOpensOverSomeFrames) {
  signIn();
  click("abc-0");
  type("dollarAmountField", "much");
  const auto& reason = app.require("errorLabel");
  const auto& room = *reason.parentItem();
  std::set<double> heights;
  QObject context;
  QObject::connect(&room, &QQuickItem::heightChanged, &context,
                   [&] { heights.insert(room.height()); });

  click("FundButton");

  EXPECT_TRUE(
      app.waitUntil([&] { return reason.isVisible() && room.height() == reason.height(); }));
  EXPECT_GE(heights.size(), 3U);
}

TEST_F(FeedbackTest, ACaptionGlidesToItsPlace) {
  auto& input = app.require("userEmail");
  const auto* box = &input;
  while (!box->property("userIsIn").isValid()) box = box->parentItem();
  QQuickItem* caption = nullptr;
  for (auto* each : box->childItems()) {
    if (each->inherits("QQuickText")) caption = each;
  }
  ASSERT_NE(caption, nullptr);
  const double rest = caption->y();
  std::set<double> places;
  QObject context;
  QObject::connect(caption, &QQuickItem::yChanged, &context, [&] { places.insert(caption->y()); });
  input.forceActiveFocus(Qt::TabFocusReason);
  EXPECT_TRUE(app.waitUntil([&] {
    return caption->property("font").value<QFont>().pointSizeF() == 10.5 && places.size() > 2;
  }));
  EXPECT_LT(caption->y(), rest);
}

}  // namespace
}  // namespace leafund
