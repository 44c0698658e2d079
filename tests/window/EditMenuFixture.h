#pragma once

#include <QClipboard>
#include <QGuiApplication>
#include <string>
#include <vector>

#include "tests/window/PressFixture.h"

namespace leafund {

// What a right click, a long press and the menu's key offer for a text.
class EditMenuFixture : public PressFixture {
 protected:
  QQuickItem* menu() {
    auto* found = app.item("editMenu");
    return found != nullptr && found->isVisible() ? found : nullptr;
  }
  static void collect(QQuickItem& item, std::vector<QQuickItem*>& found) {
    if (item.metaObject()->indexOfProperty("held") >= 0) found.push_back(&item);
    for (auto* each : item.childItems()) collect(*each, found);
  }
  std::vector<QQuickItem*> offerItems() {
    std::vector<QQuickItem*> found;
    if (menu() != nullptr) collect(*menu(), found);
    return found;
  }
  std::vector<std::string> offers() {
    std::vector<std::string> names;
    for (const auto* each : offerItems()) names.push_back(each->objectName().toStdString());
    return names;
  }
  void rightClick(const std::string& name) {
    QTest::mouseClick(&app.window(), Qt::RightButton, {}, middleOf(name));
    app.settle();
  }
  void choose(const std::string& name) {
    for (auto* each : offerItems()) {
      if (each->objectName().toStdString() == name) app.click(*each);
    }
    app.settle();
  }
  void longPress(QPoint where) {
    put(where);
    EXPECT_TRUE(app.waitUntil([this] { return menu() != nullptr; }));
    lift(where);
    app.settle();
  }
  void touch(const std::string& name) {
    for (auto* each : offerItems()) {
      if (each->objectName().toStdString() != name) continue;
      const auto middle = each->mapToScene({each->width() / 2, each->height() / 2}).toPoint();
      put(middle);
      lift(middle);
      break;
    }
    app.settle();
  }
  QString clipboard() { return QGuiApplication::clipboard()->text(); }
  QString selected(const std::string& name) {
    return app.require(name).property("selectedText").toString();
  }
  void openForm() {
    signIn();
    click("mineTab");
    click("newButton");
  }
  using Names = std::vector<std::string>;
};

}  // namespace leafund
