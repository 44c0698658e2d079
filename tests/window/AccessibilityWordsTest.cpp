#include <QAccessible>

#include "model/Catalogue.h"
#include "tests/window/WindowFixture.h"

namespace leafund {
namespace {

// What is said of a thing besides its own words.
class AccessibilityWordsTest : public WindowTest {
 protected:
  static void SetUpTestSuite() { QAccessible::setActive(true); }
  QAccessibleInterface& access(const std::string& name) {
    return *QAccessible::queryAccessibleInterface(&app.require(name));
  }
};

TEST_F(AccessibilityWordsTest, ARowIsDescribedByItsPitch) {
  signIn();
  EXPECT_EQ(access("abc-0").text(QAccessible::Name).toStdString(), otherCampaigns()[0]->title());
  EXPECT_EQ(access("abc-0").text(QAccessible::Description).toStdString(),
            otherCampaigns()[0]->shortDescription());
}

TEST_F(AccessibilityWordsTest, OneTabIsSelected) {
  signIn();
  EXPECT_TRUE(access("browseTab").state().selected);
  EXPECT_FALSE(access("fundedTab").state().selected);
  click("fundedTab");
  EXPECT_FALSE(access("browseTab").state().selected);
  EXPECT_TRUE(access("fundedTab").state().selected);
}

}  // namespace
}  // namespace leafund
