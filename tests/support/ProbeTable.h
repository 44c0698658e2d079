#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/uikit/UITableView.h"
#include "platform/uikit/UITableViewCell.h"
#include "tests/support/HeadlessApplication.h"

namespace leafund {

// Rows for a table, with a note of every question.
class ProbeRows : public UITableViewDataSource, public UITableViewDelegate {
 public:
  std::ptrdiff_t sections = 1;
  std::ptrdiff_t count = 0;
  std::function<double(std::ptrdiff_t)> height = [](std::ptrdiff_t) { return 100.0; };
  std::function<std::string(std::ptrdiff_t)> identifier = [](std::ptrdiff_t) { return "row"; };
  std::function<void(UITableView&, const std::shared_ptr<UITableViewCell>&)> onDisplay;

  std::vector<std::string> told;  // "cell 3", "display 3"
  int sectionQuestions = 0;
  int countQuestions = 0;
  int heightQuestions = 0;

  std::ptrdiff_t numberOfSectionsInTableView(UITableView&) override {
    ++sectionQuestions;
    return sections;
  }
  std::ptrdiff_t tableViewNumberOfRowsInSection(UITableView&, std::ptrdiff_t) override {
    ++countQuestions;
    return count;
  }
  double tableViewHeightForRowAtIndexPath(UITableView&, NSIndexPath indexPath) override {
    ++heightQuestions;
    return height(indexPath.row);
  }
  std::shared_ptr<UITableViewCell> tableViewCellForRowAtIndexPath(UITableView& table,
                                                                  NSIndexPath indexPath) override {
    told.push_back("cell " + std::to_string(indexPath.row));
    return table.dequeueReusableCellWithIdentifierForIndexPath(identifier(indexPath.row),
                                                               indexPath);
  }
  void tableViewWillDisplayCellForRowAtIndexPath(UITableView& table,
                                                 const std::shared_ptr<UITableViewCell>& cell,
                                                 NSIndexPath indexPath) override {
    told.push_back("display " + std::to_string(indexPath.row));
    if (onDisplay) onDisplay(table, cell);
  }
};

// A screen whose root view is a table, and nothing more.
class ProbeTableScreen : public UIViewController {
 protected:
  std::shared_ptr<UIView> makeRootView() override {
    auto table = std::make_shared<UITableView>();
    for (const char* identifier : {"row", "other"}) {
      table->registerPrototype(identifier, [identifier] {
        return std::make_shared<UITableViewCell>(UITableViewCellStyle::Subtitle, identifier);
      });
    }
    return table;
  }
};

// A table that fills the window of an application of its own, with the rows loaded.
struct ProbeTable {
  explicit ProbeTable(std::ptrdiff_t count, CGSize viewport = {390, 300},
                      std::function<double(std::ptrdiff_t)> height = nullptr)
      : app(storyboard, viewport) {
    rows->count = count;
    if (height) rows->height = std::move(height);
    table().setDataSource(rows);
    table().setDelegate(rows);
    reload();
  }

  std::shared_ptr<ProbeRows> rows = std::make_shared<ProbeRows>();
  UIStoryboard storyboard{
      "Table",
      {{"Table", [] { return std::make_shared<ProbeTableScreen>(); }, [](UIViewController&) {}}},
      {}};
  HeadlessApplication app;

  UITableView& table() { return static_cast<UITableView&>(*app.shown()->view()); }
  void reload() {
    app.application->turn([this] { table().reloadData(); });
  }
  void scroll(double offset) { app.scroll(offset); }
  std::shared_ptr<UITableViewCell> cell(std::ptrdiff_t row) {
    return table().visibleCells().at(row);
  }
  std::vector<std::ptrdiff_t> visibleRows() {
    std::vector<std::ptrdiff_t> visible;
    for (const auto& [row, cell] : table().visibleCells()) visible.push_back(row);
    return visible;
  }
};

}  // namespace leafund
