#include <gmock/gmock.h>

#include <QAccessible>

#include "tests/window/WindowFixture.h"

namespace leafund {
namespace {

// What a reader is told of messages: it speaks a notification that begins to show. The offscreen
// platform sends no events to readers; Qt sends them where an item's visibility changes.
class AnnouncementTest : public WindowTest {
 protected:
  static void SetUpTestSuite() { QAccessible::setActive(true); }

  std::vector<std::string> saidOn(const std::string& button) {
    listen();
    said_.clear();
    click(button);
    return said_;
  }

 private:
  void listen() {
    for (auto* item : app.window().contentItem()->findChildren<QQuickItem*>()) {
      auto* access = QAccessible::queryAccessibleInterface(item);
      if (access == nullptr || access->role() != QAccessible::Notification) continue;
      QObject::disconnect(item, &QQuickItem::visibleChanged, &context_, nullptr);
      QObject::connect(item, &QQuickItem::visibleChanged, &context_, [this, item, access] {
        if (item->isVisible()) said_.push_back(access->text(QAccessible::Name).toStdString());
      });
    }
  }

  std::vector<std::string> said_;
  QObject context_;
};

using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto kExceeds = "Error: Donation Exceeds Maximum";

TEST_F(AnnouncementTest, AMessageIsSaidOnceWhenItComes) {
  EXPECT_THAT(saidOn("signInButton"),
              ElementsAre("Error: Please Enter a Name", "Error: Please Enter a Password"));
}

TEST_F(AnnouncementTest, AMessageThatTakesThePlaceOfAnotherIsSaid) {
  click("signUpButton");
  type("nameField", "Wren");
  type("passwordField", "secret");
  const auto first = saidOn("signUpButton");
  ASSERT_EQ(first.size(), 1U);
  // Where the message stands now, it differs from the password.
  const auto second = saidOn("signUpButton");
  ASSERT_GE(second.size(), 1U);
  EXPECT_NE(second.back(), first.front());
}

TEST_F(AnnouncementTest, AReasonThatTakesThePlaceOfAnotherIsSaid) {
  signIn();
  click("abc-0");
  type("dollarAmountField", "ten");
  EXPECT_EQ(saidOn("FundButton").size(), 1U);
  click("dollarAmountField");
  for (int i = 0; i < 3; ++i) app.press(Qt::Key_Backspace);
  app.typeKeys("1000");
  EXPECT_THAT(saidOn("FundButton"), ElementsAre(kExceeds));
}

TEST_F(AnnouncementTest, AReasonThatComesASecondTimeIsSaidASecondTime) {
  signIn();
  click("abc-0");
  type("dollarAmountField", "1000");
  EXPECT_THAT(saidOn("FundButton"), ElementsAre(kExceeds));
  EXPECT_THAT(saidOn("FundButton"), ElementsAre(kExceeds));
}

TEST_F(AnnouncementTest, AReasonIsNotSaidAgainWhenItsPageComesBack) {
  signIn();
  click("abc-0");
  type("dollarAmountField", "1000");
  EXPECT_THAT(saidOn("FundButton"), ElementsAre(kExceeds));
  click("dollarAmountField");
  for (int i = 0; i < 4; ++i) app.press(Qt::Key_Backspace);
  app.typeKeys("5");
  EXPECT_THAT(saidOn("FundButton"), IsEmpty());
  EXPECT_THAT(saidOn("noButton"), IsEmpty());
}

TEST_F(AnnouncementTest, AReasonThatStaysForTheSameMistakeIsSaidASecondTime) {
  signIn();
  click("abc-0");
  type("dollarAmountField", "ten");
  EXPECT_EQ(saidOn("FundButton").size(), 1U);
  EXPECT_EQ(saidOn("FundButton").size(), 1U);
}

TEST_F(AnnouncementTest, AMessageIsNotSaidAgainWhenItsInputIsEnteredOrLeft) {
  click("signUpButton");
  EXPECT_THAT(saidOn("signUpButton"), testing::Not(IsEmpty()));
  EXPECT_THAT(saidOn("nameField"), IsEmpty());
  EXPECT_THAT(saidOn("passwordField"), IsEmpty());
}

}  // namespace
}  // namespace leafund
