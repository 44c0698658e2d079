#include "interface/qml/items/CardItem.h"
#include "tests/window/WindowFixture.h"

namespace leafund {
namespace {

// Cards of 40 by 40 on a window of their own, which is blue where nothing is painted.
class CardTest : public WindowTest {
 protected:
  CardTest() {
    window_.setColor(Qt::blue);
    window_.resize(100, 60);
    for (auto* item : {&item_, &other_}) {
      item->setParentItem(window_.contentItem());
      item->setSize({40, 60});
      item->setGround(Qt::white);
    }
    other_.setX(50);
  }

  static std::unique_ptr<PlainBridge> bridgeOf(const std::shared_ptr<UIView>& content) {
    return std::unique_ptr<PlainBridge>(qobject_cast<PlainBridge*>(makeBridge(content, nullptr)));
  }
  static std::shared_ptr<UIView> contentWith(const UIColor& color) {
    auto content = std::make_shared<UIView>();
    content->addSubview(card(color));
    return content;
  }
  static std::shared_ptr<UIView> card(const UIColor& color, double top = 10) {
    auto card = std::make_shared<UIView>(CGRect{0, top, 40, 40});
    card->setBackgroundColor(color);
    return card;
  }
  QColor colourAt(int y, int x = 20) { return window_.grabWindow().pixelColor(x, y); }

  QQuickWindow window_;
  CardItem item_;
  CardItem other_;
};

TEST_F(CardTest, ACardThatIsLaidUnderAnotherIsSeenWhereItIsNotCovered) {
  const auto content = contentWith(UIColor::blackColor());
  const auto bridge = bridgeOf(content);
  item_.setView(bridge.get());
  EXPECT_EQ(colourAt(55), QColor(Qt::white));
  const auto lower = card(UIColor::redColor(), 20);
  content->addSubview(lower);
  content->sendSubviewToBack(lower);
  bridge->refresh();
  EXPECT_EQ(colourAt(55), QColor(Qt::red));
  EXPECT_EQ(colourAt(30), QColor(Qt::black));
}

TEST_F(CardTest, AnotherGroundIsPainted) {
  const auto content = contentWith(UIColor::blackColor());
  const auto bridge = bridgeOf(content);
  item_.setView(bridge.get());
  EXPECT_EQ(colourAt(2), QColor(Qt::white));
  item_.setGround(Qt::yellow);
  EXPECT_EQ(colourAt(2), QColor(Qt::yellow));
}

TEST_F(CardTest, AnotherViewIsPainted) {
  const auto first = contentWith(UIColor::blackColor());
  const auto second = contentWith(UIColor::redColor());
  const auto firstBridge = bridgeOf(first);
  const auto secondBridge = bridgeOf(second);
  item_.setView(firstBridge.get());
  EXPECT_EQ(colourAt(30), QColor(Qt::black));
  item_.setView(secondBridge.get());
  EXPECT_EQ(colourAt(30), QColor(Qt::red));
}

TEST_F(CardTest, ACardOfAnotherColourIsNotPaintedLikeTheLastOne) {
  const auto black = contentWith(UIColor::blackColor());
  const auto red = contentWith(UIColor::redColor());
  const auto blackBridge = bridgeOf(black);
  const auto redBridge = bridgeOf(red);
  item_.setView(blackBridge.get());
  other_.setView(redBridge.get());
  EXPECT_EQ(colourAt(30, 20), QColor(Qt::black));
  EXPECT_EQ(colourAt(30, 70), QColor(Qt::red));
}

}  // namespace
}  // namespace leafund
