#pragma once

#include "interface/qml/bridge/ImageBridge.h"
#include "interface/qml/bridge/PlainBridge.h"
#include "interface/qml/bridge/TextBridge.h"

namespace leafund {

// A row of a table. A part that the cell's style does not have is null.
class CellBridge : public leafund::ViewBridge {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the host makes one for each view")
  Q_PROPERTY(leafund::PlainBridge* content READ content CONSTANT FINAL)
  Q_PROPERTY(leafund::ImageBridge* picture READ picture CONSTANT FINAL)
  Q_PROPERTY(leafund::LabelBridge* title READ title CONSTANT FINAL)
  Q_PROPERTY(leafund::LabelBridge* detail READ detail CONSTANT FINAL)

 public:
  CellBridge(const std::shared_ptr<UIView>& view, QObject* parent);

  PlainBridge* content() const { return findChild<PlainBridge*>("content"); }
  ImageBridge* picture() const { return findChild<ImageBridge*>("picture"); }
  LabelBridge* title() const { return findChild<LabelBridge*>("title"); }
  LabelBridge* detail() const { return findChild<LabelBridge*>("detail"); }
};

class TableBridge : public leafund::ViewBridge {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the host makes one for each view")
  // Shown where there is no row; read when they are.
  Q_PROPERTY(QString emptyHeading READ emptyHeading CONSTANT FINAL)
  Q_PROPERTY(QString emptySentence READ emptySentence CONSTANT FINAL)
  Q_PROPERTY(double contentHeight READ contentHeight NOTIFY contentHeightChanged FINAL)
  // The item takes the offset over when the placement changes, and only then.
  Q_PROPERTY(int placement READ placement NOTIFY placementChanged FINAL)
  Q_PROPERTY(double contentOffset READ contentOffset NOTIFY placementChanged FINAL)

 public:
  using ViewBridge::ViewBridge;

  QString emptyHeading() const;
  QString emptySentence() const;
  double contentHeight() const { return contentHeight_; }
  int placement() const { return placement_; }
  double contentOffset() const { return contentOffset_; }
  // One for each cell the table ever made, in the order made, which never changes.
  const std::vector<CellBridge*>& cells() const { return cells_; }

  // The user scrolled the item there.
  Q_INVOKABLE void scroll(double y);

 signals:
  void contentHeightChanged();
  void placementChanged();

 protected:
  void read(const UIView& view) override;

 private:
  double contentHeight_ = 0;
  int placement_ = 0;
  double contentOffset_ = 0;
  std::vector<CellBridge*> cells_;
};

}  // namespace leafund
