#include "interface/qml/bridge/TableBridge.h"

#include "platform/display/SceneViews.h"
#include "platform/uikit/UIApplication.h"
#include "platform/uikit/UITableView.h"
#include "platform/uikit/UITableViewCell.h"

namespace leafund {

CellBridge::CellBridge(const std::shared_ptr<UIView>& view, QObject* parent)
    : ViewBridge(view, parent) {
  for (const auto& [name, part] : partsOf(static_cast<const UITableViewCell&>(*view))) {
    makeBridge(part, this)->setObjectName(name);
  }
}

void TableBridge::read(const UIView& view) {
  ViewBridge::read(view);
  const auto& table = static_cast<const UITableView&>(view);
  contentOffset_ = table.contentOffset().y;
  take(contentHeight_, table.contentHeight(), &TableBridge::contentHeightChanged);
  take(placement_, static_cast<int>(table.placements()), &TableBridge::placementChanged);
  const auto& cells = table.subviews();
  while (cells_.size() < cells.size()) {
    cells_.push_back(static_cast<CellBridge*>(makeBridge(cells[cells_.size()], this)));
  }
}

QString TableBridge::emptyHeading() const {
  const auto table = viewAs<UITableView>();
  return table ? qtText(table->emptyWords().heading) : QString();
}

QString TableBridge::emptySentence() const {
  const auto table = viewAs<UITableView>();
  return table ? qtText(table->emptyWords().sentence) : QString();
}

void TableBridge::scroll(double y) {
  if (auto* application = UIApplication::current()) {
    application->scroll(viewAs<UITableView>(), y, static_cast<unsigned>(placement_));
  }
}

}  // namespace leafund
