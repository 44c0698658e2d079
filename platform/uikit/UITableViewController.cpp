#include "platform/uikit/UITableViewController.h"

#include "platform/foundation/FatalError.h"

namespace leafund {

std::shared_ptr<UITableView> UITableViewController::tableView() const {
  auto table = std::dynamic_pointer_cast<UITableView>(viewIfLoaded());
  if (!table) fatalError(className(), "the table view is absent");
  return table;
}

std::shared_ptr<UIView> UITableViewController::makeRootView() {
  auto table = std::make_shared<UITableView>();
  const auto self = shared(this);
  table->setDataSource(self);
  table->setDelegate(self);
  return table;
}

}  // namespace leafund
