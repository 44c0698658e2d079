#include "interface/qml/bridge/TableRows.h"

#include <QFocusEvent>
#include <QQmlContext>
#include <algorithm>
#include <map>

#include "platform/foundation/FatalError.h"
#include "platform/uikit/UITableView.h"
#include "platform/uikit/UITableViewCell.h"

namespace leafund {

void TableRows::setTable(TableBridge* table) {
  if (table == table_) return;
  if (table_) disconnect(table_, nullptr, this, nullptr);
  table_ = table;
  connect(table_, &ViewBridge::refreshed, this, &TableRows::catchUp);
  emit tableChanged();
}

void TableRows::componentComplete() {
  QQuickItem::componentComplete();
  catchUp();
}

void TableRows::catchUp() {
  if (!isComponentComplete() || !table_) return;
  while (items_.size() < table_->cells().size()) makeItem(table_->cells()[items_.size()]);
  nameAndStack();
}

void TableRows::makeItem(CellBridge* cell) {
  QVariantMap properties;
  properties.insert("view", QVariant::fromValue(cell));
  if (!delegate_->isReady()) fatalError("TableRows", delegate_->errorString().toStdString());
  auto* object = delegate_->createWithInitialProperties(properties, delegate_->creationContext());
  auto* item = qobject_cast<QQuickItem*>(object);
  if (item == nullptr) fatalError("TableRows", delegate_->errorString().toStdString());
  item->setParent(this);
  item->setParentItem(this);
  item->installEventFilter(this);
  items_.push_back(item);
}

bool TableRows::eventFilter(QObject* row, QEvent* event) {
  if (event->type() == QEvent::FocusIn) {
    const auto reason = static_cast<QFocusEvent*>(event)->reason();
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::MouseFocusReason) {
      emit rowFocused(static_cast<QQuickItem*>(row));
    }
  }
  return false;
}

void TableRows::nameAndStack() {
  const auto view = table_->view();
  if (!view) return;  // on its way out: it stays as it was last shown
  const auto& table = static_cast<const UITableView&>(*view);
  std::map<const UIView*, QQuickItem*> itemOf;
  QString focused;
  for (std::size_t i = 0; i < items_.size(); ++i) {
    itemOf[table_->cells()[i]->view().get()] = items_[i];
    if (items_[i]->hasFocus())
      focused = items_[i]->objectName();  // also where the window is inactive
    items_[i]->setObjectName({});
  }
  QQuickItem* before = nullptr;
  for (const auto& [row, cell] : table.visibleCells()) {
    auto* item = itemOf[cell.get()];
    item->setObjectName(qtText(cell->reuseIdentifier()) + '-' + QString::number(row));
    if (before != nullptr) item->stackAfter(before);
    before = item;
  }
  if (!focused.isEmpty()) keepFocus(focused);
}

void TableRows::focusSeen(double top, double bottom) {
  QQuickItem* first = nullptr;
  QQuickItem* last = nullptr;
  QQuickItem* most = nullptr;  // where none is seen whole
  double mostSeen = 0;
  bool below = false;
  for (auto* item : items_) {
    if (item->objectName().isEmpty()) continue;
    const bool seen = item->y() >= top && item->y() + item->height() <= bottom;
    const double part = std::min(bottom, item->y() + item->height()) - std::max(top, item->y());
    if (part > mostSeen) most = item, mostSeen = part;
    if (item->hasActiveFocus()) {
      if (seen) return;
      below = item->y() > top;
    }
    if (!seen) continue;
    if (first == nullptr || item->y() < first->y()) first = item;
    if (last == nullptr || item->y() > last->y()) last = item;
  }
  auto* row = below ? last : first;
  if (row == nullptr) row = most;
  if (row != nullptr) row->forceActiveFocus(Qt::ActiveWindowFocusReason);
}

void TableRows::keepFocus(const QString& rowName) {
  const auto row = std::find_if(items_.begin(), items_.end(),
                                [&](auto* item) { return item->objectName() == rowName; });
  if (row != items_.end() && (*row)->hasFocus()) return;
  const bool active = std::any_of(items_.begin(), items_.end(),
                                  [](const auto* item) { return item->hasActiveFocus(); });
  for (auto* item : items_) item->setFocus(false);
  if (row == items_.end()) return;
  if (active) {
    (*row)->forceActiveFocus(Qt::ActiveWindowFocusReason);
  } else {
    (*row)->setFocus(true, Qt::ActiveWindowFocusReason);
  }
}

}  // namespace leafund
