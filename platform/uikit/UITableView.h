#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/uikit/UIScrollView.h"

namespace leafund {

class UITableView;
class UITableViewCell;

struct NSIndexPath {
  std::ptrdiff_t row = 0;
  std::ptrdiff_t section = 0;
  bool operator==(const NSIndexPath&) const = default;
};

class UITableViewDataSource {
 public:
  virtual ~UITableViewDataSource() = default;
  virtual std::ptrdiff_t numberOfSectionsInTableView(UITableView& tableView) = 0;
  virtual std::ptrdiff_t tableViewNumberOfRowsInSection(UITableView& tableView,
                                                        std::ptrdiff_t section) = 0;
  virtual std::shared_ptr<UITableViewCell> tableViewCellForRowAtIndexPath(
      UITableView& tableView, NSIndexPath indexPath) = 0;
};

class UITableViewDelegate {
 public:
  virtual ~UITableViewDelegate() = default;
  // In points.
  virtual double tableViewHeightForRowAtIndexPath(UITableView& tableView,
                                                  NSIndexPath indexPath) = 0;
  // Told of a cell before it is shown.
  virtual void tableViewWillDisplayCellForRowAtIndexPath(
      UITableView& tableView, const std::shared_ptr<UITableViewCell>& cell,
      NSIndexPath indexPath) = 0;
};

// Rows of one section under one another. It has rows only after reloadData, which asks for their
// count exactly once and for the height of each; scrolling, resizing and drawing never ask again.
// Cells are asked for in layout alone, for exactly the rows that are visible, from the top.
class UITableView : public UIScrollView {
 public:
  UITableView();
  ~UITableView() override;
  ViewKind kind() const override { return ViewKind::Table; }

  void setDataSource(std::weak_ptr<UITableViewDataSource> source) {
    dataSource_ = std::move(source);
  }
  void setDelegate(std::weak_ptr<UITableViewDelegate> delegate) { delegate_ = std::move(delegate); }

  // Visible cells go back to the pool in row order before any is taken from it.
  void reloadData();

  // A cell from the front of the identifier's pool, else a new one of its prototype; an identifier
  // without a prototype is fatal. Reuse clears nothing: an old picture stays until a new one comes.
  std::shared_ptr<UITableViewCell> dequeueReusableCellWithIdentifierForIndexPath(
      std::string_view identifier, NSIndexPath indexPath);
  void registerPrototype(std::string identifier,
                         std::function<std::shared_ptr<UITableViewCell>()> make);

  // Nothing for a cell that is not shown in this table.
  std::optional<NSIndexPath> indexPathForCell(const std::shared_ptr<UITableViewCell>& cell) const;

  // Kept and never laid out by: the delegate answers the height of every row.
  double rowHeight() const { return rowHeight_; }
  void setRowHeight(double height) { rowHeight_ = height; }

  // What a host shows where there is no row, a heading and a sentence; it counts as no row.
  struct EmptyWords {
    std::string heading;
    std::string sentence;
  };
  const EmptyWords& emptyWords() const { return emptyWords_; }
  void setEmptyWords(EmptyWords words) { emptyWords_ = std::move(words); }

  double contentHeight() const { return contentHeight_; }
  // As far as the content reaches; what lies beyond is not scrolled to.
  double greatestOffset() const;
  const std::map<std::ptrdiff_t, std::shared_ptr<UITableViewCell>>& visibleCells() const {
    return visible_;
  }

  void layoutSubviews() override;

 private:
  // Rows of one height under one another: a million rows of a height are one run.
  struct Run {
    std::ptrdiff_t firstRow;
    double top;
    double rowHeight;
  };
  void measureRows();
  const Run& runOfRow(std::ptrdiff_t row) const;
  double topOfRow(std::ptrdiff_t row) const;
  std::ptrdiff_t rowAt(double y) const;
  void recycle(const std::shared_ptr<UITableViewCell>& cell);
  void showRow(std::ptrdiff_t row);

  EmptyWords emptyWords_;
  std::weak_ptr<UITableViewDataSource> dataSource_;
  std::weak_ptr<UITableViewDelegate> delegate_;
  std::map<std::string, std::function<std::shared_ptr<UITableViewCell>()>, std::less<>> prototypes_;
  std::map<std::string, std::deque<std::shared_ptr<UITableViewCell>>, std::less<>> pools_;
  std::map<std::ptrdiff_t, std::shared_ptr<UITableViewCell>> visible_;
  std::vector<Run> runs_;
  std::ptrdiff_t rowCount_ = 0;
  double contentHeight_ = 0;
  double rowHeight_ = 44;
};

}  // namespace leafund
