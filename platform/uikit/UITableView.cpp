#include "platform/uikit/UITableView.h"

#include <algorithm>
#include <utility>

#include "platform/foundation/FatalError.h"
#include "platform/uikit/UITableViewCell.h"

namespace leafund {

UITableView::UITableView() = default;
UITableView::~UITableView() = default;

void UITableView::reloadData() {
  for (const auto& [row, cell] : std::exchange(visible_, {})) recycle(cell);
  measureRows();
  setContentOffset({contentOffset().x, std::clamp(contentOffset().y, 0.0, greatestOffset())});
  setNeedsLayout();
  changed();
}

void UITableView::measureRows() {
  runs_.clear();
  rowCount_ = 0;
  contentHeight_ = 0;
  const auto source = dataSource_.lock();
  const auto delegate = delegate_.lock();
  if (!source || !delegate || source->numberOfSectionsInTableView(*this) < 1) return;
  rowCount_ = source->tableViewNumberOfRowsInSection(*this, 0);
  for (std::ptrdiff_t row = 0; row < rowCount_; ++row) {
    const double height = delegate->tableViewHeightForRowAtIndexPath(*this, {row, 0});
    if (runs_.empty() || runs_.back().rowHeight != height) {
      contentHeight_ = topOfRow(row);
      runs_.push_back({row, contentHeight_, height});
    }
  }
  contentHeight_ = topOfRow(rowCount_);
}

std::shared_ptr<UITableViewCell> UITableView::dequeueReusableCellWithIdentifierForIndexPath(
    std::string_view identifier, NSIndexPath) {
  const auto pool = pools_.find(identifier);
  if (pool != pools_.end() && !pool->second.empty()) {
    auto cell = std::move(pool->second.front());
    pool->second.pop_front();
    return cell;
  }
  const auto prototype = prototypes_.find(identifier);
  if (prototype == prototypes_.end()) {
    fatalError("table view", "no prototype cell is named " + std::string(identifier));
  }
  return prototype->second();
}

void UITableView::registerPrototype(std::string identifier,
                                    std::function<std::shared_ptr<UITableViewCell>()> make) {
  prototypes_.insert_or_assign(std::move(identifier), std::move(make));
}

std::optional<NSIndexPath> UITableView::indexPathForCell(
    const std::shared_ptr<UITableViewCell>& cell) const {
  for (const auto& [row, shown] : visible_) {
    if (shown == cell) return NSIndexPath{row, 0};
  }
  return std::nullopt;
}

double UITableView::greatestOffset() const {
  return std::max(0.0, contentHeight_ - frame().height);
}

void UITableView::layoutSubviews() {
  // A table that grew near its end would show nothing below its last row.
  if (contentOffset().y > greatestOffset()) setContentOffset({contentOffset().x, greatestOffset()});
  const double top = contentOffset().y;
  const double bottom = top + frame().height;
  const std::ptrdiff_t first = rowAt(top);
  std::ptrdiff_t end = rowAt(bottom);
  if (end < rowCount_ && topOfRow(end) < bottom) ++end;
  if (frame().height <= 0) end = first;
  std::erase_if(visible_, [&](const auto& entry) {
    const bool gone = entry.first < first || entry.first >= end;
    if (gone) recycle(entry.second);
    return gone;
  });
  for (const auto& [row, cell] : visible_) {
    cell->setFrame({0, topOfRow(row), frame().width, runOfRow(row).rowHeight});
  }
  for (std::ptrdiff_t row = first; row < end; ++row) {
    if (!visible_.contains(row)) showRow(row);
  }
}

void UITableView::showRow(std::ptrdiff_t row) {
  const auto source = dataSource_.lock();
  const auto delegate = delegate_.lock();
  if (!source || !delegate) return;
  auto cell = source->tableViewCellForRowAtIndexPath(*this, {row, 0});
  cell->setFrame({0, topOfRow(row), frame().width, runOfRow(row).rowHeight});
  cell->setHidden(false);
  if (cell->superview() != this) addSubview(cell);
  delegate->tableViewWillDisplayCellForRowAtIndexPath(*this, cell, {row, 0});
  visible_.insert_or_assign(row, std::move(cell));
  changed();
}

void UITableView::recycle(const std::shared_ptr<UITableViewCell>& cell) {
  cell->setHidden(true);
  pools_[cell->reuseIdentifier()].push_back(cell);
  changed();
}

const UITableView::Run& UITableView::runOfRow(std::ptrdiff_t row) const {
  const auto after =
      std::upper_bound(runs_.begin(), runs_.end(), row,
                       [](std::ptrdiff_t value, const Run& run) { return value < run.firstRow; });
  return *std::prev(after);
}

double UITableView::topOfRow(std::ptrdiff_t row) const {
  if (runs_.empty()) return 0;
  const auto& run = runOfRow(row);
  return run.top + static_cast<double>(row - run.firstRow) * run.rowHeight;
}

// The row under the point, or the row count below the last one.
std::ptrdiff_t UITableView::rowAt(double y) const {
  if (runs_.empty() || y >= contentHeight_) return rowCount_;
  const auto after = std::upper_bound(runs_.begin(), runs_.end(), y,
                                      [](double value, const Run& run) { return value < run.top; });
  const auto& run = after == runs_.begin() ? runs_.front() : *std::prev(after);
  if (run.rowHeight <= 0) return run.firstRow;
  return run.firstRow + static_cast<std::ptrdiff_t>(std::max(0.0, y - run.top) / run.rowHeight);
}

}  // namespace leafund
