#pragma once

#include <QtQmlIntegration/qqmlintegration.h>

#include <QPointer>
#include <QQmlComponent>
#include <QQuickItem>
#include <vector>

#include "interface/qml/bridge/TableBridge.h"

namespace leafund {

// The rows of a table: one item for each cell the table ever made, kept as long as the table. They
// are stacked in the order of their rows, because the order of Tab and of screen readers follows
// the stacking. A shown row's item is named after its identifier and row, such as "abc-3", a pooled
// one has no name. The focus stays with the row when rows change cells.
class TableRows : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(
      leafund::TableBridge* table READ table WRITE setTable NOTIFY tableChanged REQUIRED FINAL)
  // Makes a row's item; it is given the cell as its property `view`.
  Q_PROPERTY(QQmlComponent* delegate MEMBER delegate_ NOTIFY delegateChanged REQUIRED FINAL)

 public:
  using QQuickItem::QQuickItem;

  TableBridge* table() const { return table_; }
  void setTable(TableBridge* table);

  // Puts the focus on a row that lies wholly between two heights of the table: where it has left
  // that stretch at the bottom on the last such row, otherwise on the first, and where there is
  // none on the row of which most is seen. It stays on a row that lies there.
  Q_INVOKABLE void focusSeen(double top, double bottom);

 signals:
  void tableChanged();
  void delegateChanged();
  // By keyboard or assistive technology. Who points at a row sees it, and a focus that the host
  // gives moves no list.
  void rowFocused(QQuickItem* row);

 protected:
  bool eventFilter(QObject* row, QEvent* event) override;
  void componentComplete() override;

 private:
  void catchUp();
  void makeItem(CellBridge* cell);
  void nameAndStack();
  void keepFocus(const QString& rowName);

  QPointer<TableBridge> table_;
  QQmlComponent* delegate_ = nullptr;
  std::vector<QQuickItem*> items_;  // by the cells' order; children of this item
};

}  // namespace leafund
