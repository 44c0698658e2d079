#include <map>

#include "platform/qt/QtValues.h"
#include "platform/uikit/UIButton.h"
#include "platform/uikit/UILabel.h"
#include "platform/uikit/UITextInput.h"
#include "tests/support/ViewNamed.h"
#include "tests/window/WindowFixture.h"

namespace leafund {
namespace {

class AgreementTest : public WindowTest {};

// What the window and the toolkit must agree on, on the screen shown: every named view has exactly
// one item, seen where the view is, with the same words.
void collectNames(const UIView& root, std::map<std::string, const UIView*>& views) {
  for (const auto& view : root.subviews()) {
    if (!view->name().empty()) views[view->name()] = view.get();
    collectNames(*view, views);
  }
}

// Whoever reads and never writes sees the skin's own colour instead of the toolkit's plain black.
void expectColourOf(const UITextInput& input, const QQuickItem& item) {
  const QColor colour = qtColor(input.textColor().CGColor());
  if (colour == Qt::black && item.inherits("QQuickText")) return;
  EXPECT_EQ(item.property("color").value<QColor>(), colour) << input.name();
}

void expectWindowEqualsToolkit(WindowApplication& app) {
  std::map<std::string, const UIView*> views;
  collectNames(*app.navigation().topViewController()->view(), views);
  ASSERT_FALSE(views.empty());
  for (const auto& [name, view] : views) {
    const auto items = app.page()->findChildren<QQuickItem*>(QString::fromStdString(name));
    ASSERT_EQ(items.size(), 1) << name;
    bool hidden = false;
    for (const auto* each = view; each != nullptr; each = each->superview()) {
      hidden = hidden || each->hidden();
    }
    EXPECT_EQ(items[0]->isVisible(), !hidden) << name;
    if (const auto* label = dynamic_cast<const UILabel*>(view)) {
      EXPECT_EQ(items[0]->property("text").toString().toStdString(), label->text()) << name;
    }
    if (const auto* input = dynamic_cast<const UITextInput*>(view)) {
      EXPECT_EQ(items[0]->property("text").toString().toStdString(), input->text()) << name;
      expectColourOf(*input, *items[0]);
    }
    if (const auto* button = dynamic_cast<const UIButton*>(view)) {
      EXPECT_EQ(items[0]->property("text").toString().toStdString(), button->title()) << name;
    }
  }
}

TEST_F(AgreementTest, EveryNamedViewOfEverySceneHasExactlyOneItemThatAgreesWithIt) {
  expectWindowEqualsToolkit(app);
  click("signUpButton");
  expectWindowEqualsToolkit(app);
  app.press(Qt::Key_Escape);
  app.settle();
  signIn();
  for (const auto* tab : {"browseTab", "fundedTab", "mineTab", "newsTab"}) {
    click(tab);
    expectWindowEqualsToolkit(app);
  }
  click("mineTab");
  click("newButton");
  expectWindowEqualsToolkit(app);
  app.press(Qt::Key_Escape);
  app.settle();
  click("fundedTab");
  click("Funded-0");
  expectWindowEqualsToolkit(app);
  click("campaignUpdates");
  expectWindowEqualsToolkit(app);
  app.press(Qt::Key_Escape);
  app.settle();
  app.press(Qt::Key_Escape);
  app.settle();
  click("browseTab");
  click("abc-0");
  expectWindowEqualsToolkit(app);
  type("dollarAmountField", "10");
  click("FundButton");
  expectWindowEqualsToolkit(app);
  click("yesButton");
  expectWindowEqualsToolkit(app);
}

TEST_F(AgreementTest, TheWindowAgreesWithEveryScreenThatRefuses) {
  click("signInButton");
  expectWindowEqualsToolkit(app);
  click("signUpButton");
  click("signUpButton");
  expectWindowEqualsToolkit(app);
  app.press(Qt::Key_Escape);
  app.settle();
  signIn();
  click("abc-0");
  type("dollarAmountField", "ten");
  click("FundButton");
  ASSERT_TRUE(app.require("errorLabel").isVisible());
  expectWindowEqualsToolkit(app);
  app.press(Qt::Key_Escape);
  app.settle();
  click("mineTab");
  click("newButton");
  click("createButton");
  expectWindowEqualsToolkit(app);
  EXPECT_EQ(app.require("nameOfCreator").property("color").value<QColor>(), QColor(Qt::red));
}

// No screen hides a label today; a controller may, and nothing in the skins would have to change.
TEST_F(AgreementTest, WhateverTheToolkitHidesIsNotSeen) {
  signIn();
  click("abc-0");
  std::map<std::string, const UIView*> views;
  collectNames(*app.navigation().topViewController()->view(), views);
  for (const auto& [name, found] : views) {
    auto& view = *viewNamed(app.navigation(), name);
    if (view.hidden()) continue;
    app.application->turn([&] { view.setHidden(true); });
    expectWindowEqualsToolkit(app);
    app.application->turn([&] { view.setHidden(false); });
    expectWindowEqualsToolkit(app);
  }
}

}  // namespace
}  // namespace leafund
