#include "model/Catalogue.h"
#include "screens/campaign/OneCampaignViewController.h"
#include "tests/window/WindowFixture.h"

namespace leafund {
namespace {

// The text of a campaign's page, in a window too low for the page.
class ReadingTextTest : public WindowTest {
 protected:
  void open() {
    for (int i = 0; i < 200; ++i) text_ += "A barrel under every gutter. ";
    otherCampaigns()[0]->setCampaignDescription(text_);
    app.window().resize(390, 400);
    signIn();
    click("abc-0");
  }
  void askForTheTop() {
    const auto page = std::dynamic_pointer_cast<OneCampaignViewController>(app.shown());
    app.application->turn([&] { page->campaignText->scrollRangeToVisible({0, 1}); });
    app.settle();
  }
  double top() { return app.require("campaignText").mapToScene({0, 0}).y(); }

 private:
  std::string text_;
};

TEST_F(ReadingTextTest, APageOpensAtItsOwnBeginningThoughItsTextIsAskedForItsTop) {
  open();
  EXPECT_GT(top(), app.window().height());
}

TEST_F(ReadingTextTest, WhenItsTopIsAskedForAReaderWhoIsPastItIsTakenBack) {
  open();
  for (int i = 0; i < 30; ++i) app.press(Qt::Key_PageDown);
  app.settle();
  const double bar = app.shown()->view()->frame().y;
  ASSERT_LT(top(), bar) << "the text is not scrolled past";
  askForTheTop();
  EXPECT_GE(top(), bar);
  EXPECT_LT(top(), app.window().height());
  askForTheTop();
  EXPECT_GE(top(), bar);
}

}  // namespace
}  // namespace leafund
