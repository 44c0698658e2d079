#include <QLocale>

#include "platform/uikit/UITableView.h"
#include "platform/uikit/UITableViewCell.h"
#include "tests/window/FingerFixture.h"

namespace leafund {
namespace {

// A language that is read from right to left.
struct Arabic {
  Arabic() { QLocale::setDefault(QLocale(QLocale::Arabic)); }
};
class MirrorTest : private Arabic, public FingerTest {
 protected:
  QRectF placeOf(const std::string& name) {
    auto& item = app.require(name);
    return item.mapRectToScene({0, 0, item.width(), item.height()});
  }
};

TEST_F(MirrorTest, TheBarAndTheTabsRunFromRightToLeft) {
  signIn();
  EXPECT_EQ(placeOf("barTitle").right(), 390 - 16);
  EXPECT_GT(placeOf("browseTab").left(), placeOf("fundedTab").left());
  EXPECT_GT(placeOf("mineTab").left(), placeOf("newsTab").left());
  click("mineTab");
  click("newButton");
  EXPECT_GE(placeOf("backButton").left(), 390 - 60);
  EXPECT_LE(placeOf("barTitle").right(), placeOf("backButton").left());
}

TEST_F(MirrorTest, ARailStandsAtTheRightAndTheFirstColumnBesideIt) {
  signIn();
  app.window().resize(1280, 800);
  ASSERT_TRUE(app.waitUntil([&] { return app.page()->width() == 1280; }));
  app.settle();
  EXPECT_EQ(placeOf("tabBar"), QRectF(1280 - 96, 0, 96, 800));
  EXPECT_LE(placeOf("abc-0").right(), placeOf("tabBar").left());
  click("abc-0");
  EXPECT_GE(placeOf("campaignTitle").left(), placeOf("about").right());
}

TEST_F(MirrorTest, ARowsPictureStandsAtItsRightAndItsWordsEndBesideIt) {
  signIn();
  const auto& row = app.require("abc-0");
  QRectF picture, words;
  for (const auto* part : row.findChildren<QQuickItem*>()) {
    const QRectF place = part->mapRectToScene({0, 0, part->width(), part->height()});
    if (part->inherits("leafund::PictureItem")) picture = place;
    if (part->inherits("leafund::StillText")) words = place;
  }
  EXPECT_EQ(picture.right(), placeOf("abc-0").right() - 16);
  EXPECT_LE(words.right(), picture.left());
}

TEST_F(MirrorTest, AFingerDrawnFromTheRightEdgeLeadsBackAndFromTheLeftNowhere) {
  openUpdate();
  touch({6, 500}, {220, 510});
  EXPECT_EQ(screen(), "UpdatePageVC");
  touch({384, 500}, {330, 500});
  EXPECT_EQ(screen(), "UpdatePageVC");
  touch({384, 500}, {170, 510});
  EXPECT_EQ(screen(), "OneCampaignViewController");
}

TEST_F(MirrorTest, AScreenComesFromTheLeft) {
  signIn();
  app.application->tap(dynamic_cast<UITableView&>(*app.shown()->view()).visibleCells().at(0));
  EXPECT_LT(app.page()->x(), 0);
  app.settle();
  app.application->goBack();
  EXPECT_GT(app.page()->x(), 0);
}

TEST_F(MirrorTest, ArrowsLeadAsTheTabsStandAndAltWithLeftBackAsEverywhere) {
  signIn();
  app.require("browseTab").forceActiveFocus(Qt::TabFocusReason);
  app.press(Qt::Key_Left);
  EXPECT_TRUE(app.require("fundedTab").hasActiveFocus());
  app.press(Qt::Key_Right);
  EXPECT_TRUE(app.require("browseTab").hasActiveFocus());
  click("abc-0");
  app.press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(screen(), "OtherCampaignsTableViewController");
}

}  // namespace
}  // namespace leafund
