#pragma once

#include <memory>

#include "platform/uikit/UITableView.h"
#include "platform/uikit/UIViewController.h"

namespace leafund {

// A screen whose root view is a table that asks this screen for its rows.
class UITableViewController : public UIViewController,
                              public UITableViewDataSource,
                              public UITableViewDelegate {
 public:
  // Fatal when the view is not loaded or is no table.
  std::shared_ptr<UITableView> tableView() const;

  // A column in the middle, so that a row stays a card in a window of any width. It begins at a
  // whole point.
  CGRect rootFrameIn(CGRect room) const override;
  static constexpr double kMargin = 16;  // points, at least, at either edge
  static constexpr double kMostWidth = 720;

 protected:
  std::shared_ptr<UIView> makeRootView() override;
};

}  // namespace leafund
