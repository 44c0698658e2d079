#include <QTest>

#include "interface/qml/bridge/TableBridge.h"
#include "platform/uikit/UITableView.h"
#include "platform/uikit/UITableViewCell.h"
#include "tests/journeys/Driver.h"
#include "tests/window/WindowApplication.h"

namespace leafund {
namespace {

// Clicks and types in the window, and reads from it.
class WindowDriver final : public Driver {
 public:
  void tap(const std::string& name) override {
    app_.click(app_.require(name));
    app_.settle();
  }
  void tapRow(std::ptrdiff_t row) override {
    app_.click(rowItem(row));
    app_.settle();
  }
  void type(const std::string& name, const std::string& text) override {
    app_.click(app_.require(name));
    QTest::keyClick(&app_.window(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&app_.window(), Qt::Key_Delete);
    app_.typeKeys(text);
    app_.settle();
  }
  void scroll(double offset) override {
    app_.require("table").setProperty("contentY", offset);
    app_.settle();
  }
  void resize(CGSize size) override {
    app_.window().resize(static_cast<int>(size.width), static_cast<int>(size.height));
    app_.waitUntil([&] { return app_.page()->width() == size.width; });
    app_.settle();
  }
  void back() override {
    app_.press(Qt::Key_Escape);
    app_.settle();
  }

  std::string screen() override { return app_.shown()->className(); }
  std::string text(const std::string& name) override {
    return app_.require(name).property("text").toString().toStdString();
  }
  bool seen(const std::string& name) override { return app_.require(name).isVisible(); }

  std::vector<std::string> rows() override {
    std::vector<std::string> titles;
    for (const auto& [row, cell] : table().visibleCells()) {
      const auto* view = rowItem(row).property("view").value<CellBridge*>();
      const auto* title = view->title();
      titles.push_back(title->text().toStdString());
    }
    return titles;
  }

  bool pictureShown(const std::string& name) override {
    const auto* view = app_.require(name).property("view").value<ImageBridge*>();
    return app_.waitUntil([&] { return view->picture().image != nullptr; });
  }
  bool rowPictureShown(std::ptrdiff_t row) override {
    const auto* view = rowItem(row).property("view").value<CellBridge*>();
    const auto* picture = view->picture();
    return app_.waitUntil([&] { return picture->picture().image != nullptr; });
  }
  std::string pictureAddress(const std::string& fileName) override {
    return app_.server().address("/" + fileName);
  }

 private:
  UITableView& table() { return dynamic_cast<UITableView&>(*app_.shown()->view()); }
  QQuickItem& rowItem(std::ptrdiff_t row) {
    const auto& cell = table().visibleCells().at(row);
    return app_.require(cell->reuseIdentifier() + "-" + std::to_string(row));
  }

  WindowApplication app_;
};

}  // namespace

std::unique_ptr<Driver> Driver::make() { return std::make_unique<WindowDriver>(); }

}  // namespace leafund
