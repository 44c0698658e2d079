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

 protected:
  std::shared_ptr<UIView> makeRootView() override;
};

}  // namespace leafund
