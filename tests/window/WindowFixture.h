#pragma once

#include <gtest/gtest.h>

#include <QQuickItem>
#include <QTest>
#include <string>

#include "tests/window/WindowApplication.h"

namespace leafund {

// The application in its window, used by clicks and keys.
class WindowTest : public testing::Test {
 protected:
  void click(const std::string& name) {
    app.click(app.require(name));
    app.settle();
  }
  void type(const std::string& name, const std::string& text) {
    app.click(app.require(name));
    app.typeKeys(text);
    app.settle();
  }
  void signIn() {
    type("userEmail", "wren@example.org");
    type("password", "secret");
    click("signInButton");
  }
  QString shownWords(const std::string& name) {
    return app.require(name).property("text").toString();
  }

  WindowApplication app;
};

}  // namespace leafund
