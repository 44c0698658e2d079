#include "platform/uikit/UITableViewController.h"

#include <algorithm>
#include <cmath>

#include "platform/foundation/FatalError.h"

namespace leafund {

std::shared_ptr<UITableView> UITableViewController::tableView() const {
  auto table = std::dynamic_pointer_cast<UITableView>(viewIfLoaded());
  if (!table) fatalError(className(), "the table view is absent");
  return table;
}

CGRect UITableViewController::rootFrameIn(CGRect room) const {
  const double width = std::clamp(room.width - 2 * kMargin, 0.0, kMostWidth);
  const double margin = std::floor((room.width - width) / 2);
  return {room.x + margin, room.y, width, room.height};
}

std::shared_ptr<UIView> UITableViewController::makeRootView() {
  auto table = std::make_shared<UITableView>();
  const auto self = shared(this);
  table->setDataSource(self);
  table->setDelegate(self);
  return table;
}

}  // namespace leafund
