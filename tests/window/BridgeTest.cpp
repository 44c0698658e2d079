#include <gtest/gtest.h>

#include <QSignalSpy>

#include "interface/qml/bridge/TextInputBridge.h"
#include "tests/support/ViewNamed.h"
#include "tests/window/WindowFixture.h"

namespace leafund {
namespace {

// The password of the landing page, and what its bridge tells.
class BridgeTest : public WindowTest {
 protected:
  int told() const { return static_cast<int>(text.size() + message.size() + masked.size()); }
  void write(const std::string& words) {
    app.application->turn([&] { field->setText(words); });
  }

  std::shared_ptr<UITextField> field =
      std::dynamic_pointer_cast<UITextField>(viewNamed(app.navigation(), "password"));
  TextFieldBridge& bridge = dynamic_cast<TextFieldBridge&>(*field->skin());
  QSignalSpy refreshed{&bridge, &ViewBridge::refreshed};
  QSignalSpy text{&bridge, &TextBridge::textChanged};
  QSignalSpy message{&bridge, &TextInputBridge::showsMessageChanged};
  QSignalSpy masked{&bridge, &TextFieldBridge::maskedChanged};
};

TEST_F(BridgeTest, WhatTheUserTypesIsNotToldBack) {
  bridge.edit("a");
  EXPECT_EQ(field->text(), "a");
  EXPECT_EQ(bridge.text(), "a");
  EXPECT_EQ(refreshed.size(), 1);
  EXPECT_EQ(told(), 0);
}

TEST_F(BridgeTest, WhatTheToolkitMakesOfATypedTextIsTold) {
  bridge.edit(QString(QChar(0xd800)));  // half a character
  EXPECT_EQ(bridge.text(), QString::fromStdString(field->text()));
  EXPECT_EQ(text.size(), 1);
}

TEST_F(BridgeTest, EachPropertyTellsOnceAndWhenAllAreTakenOver) {
  bool agrees = false;
  QObject::connect(&bridge, &TextBridge::textChanged, &bridge,
                   [&] { agrees = bridge.showsMessage() && !bridge.masked(); });
  write("Wrong");
  EXPECT_TRUE(agrees);
  EXPECT_EQ(text.size(), 1);
  EXPECT_EQ(message.size(), 1);
  EXPECT_EQ(masked.size(), 1);
}

TEST_F(BridgeTest, AMessageThatIsSaidOnceMoreIsARefreshAndNoChange) {
  write("Wrong");
  const int before = told();
  write("Wrong");
  EXPECT_EQ(told(), before);
  EXPECT_EQ(refreshed.size(), 2);
}

TEST_F(BridgeTest, ABridgeWhoseViewIsGoneShowsWhatItShowedAndDoesNothing) {
  auto view = std::make_shared<UITextField>();
  view->setText("Wrong");
  const std::unique_ptr<ViewBridge> left(makeBridge(view, nullptr));
  view.reset();
  auto& input = dynamic_cast<TextFieldBridge&>(*left);
  input.refresh();
  input.tap();
  input.beginEditing();
  input.pressReturn();
  EXPECT_EQ(input.text(), "Wrong");
}

}  // namespace
}  // namespace leafund
