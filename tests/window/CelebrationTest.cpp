#include <algorithm>

#include "tests/window/WindowFixture.h"

namespace leafund {
namespace {

class CelebrationTest : public WindowTest {
 protected:
  QQuickItem* celebration() {
    for (auto* each : app.page()->findChildren<QQuickItem*>()) {
      const bool is = QByteArray(each->metaObject()->className()).startsWith("Celebration");
      if (is && each->isVisible()) return each;
    }
    return nullptr;
  }
  void openFunded() {
    signIn();
    click("fundedTab");
    app.click(app.require("Funded-0"));
  }
};

TEST_F(CelebrationTest, ItBeginsWhenTheSlideHasEnded) {
  openFunded();
  auto* page = app.page();
  auto* party = celebration();
  ASSERT_NE(party, nullptr);
  const double folded = party->scale();
  EXPECT_LT(folded, 1);
  double duringSlide = folded;
  int moves = 0;
  QObject context;
  QObject::connect(party, &QQuickItem::scaleChanged, &context, [&] {
    if (page->x() != 0) duringSlide = std::max(duringSlide, party->scale());
    ++moves;
  });
  app.settle();
  EXPECT_EQ(duringSlide, folded);
  EXPECT_LT(party->scale(), 1);
  ASSERT_TRUE(app.waitUntil([&] { return party->property("seen").toBool(); }));
  EXPECT_GT(moves, 5);
  EXPECT_EQ(party->scale(), 1);
}

TEST_F(CelebrationTest, WhatWasSeenIsNotRepeatedOnTheWayBack) {
  openFunded();
  auto* party = celebration();
  ASSERT_NE(party, nullptr);
  ASSERT_TRUE(app.waitUntil([&] { return party->property("seen").toBool(); }));
  EXPECT_EQ(party->scale(), 1);
  click("campaignUpdates");
  double least = 1;
  QObject context;
  QObject::connect(party, &QQuickItem::scaleChanged, &context,
                   [&] { least = std::min(least, party->scale()); });
  app.press(Qt::Key_Escape);
  app.settle();
  EXPECT_EQ(celebration(), party);
  EXPECT_EQ(least, 1);
}

}  // namespace
}  // namespace leafund
