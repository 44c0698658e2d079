#pragma once

#include <QtQmlIntegration/qqmlintegration.h>

#include <QColor>
#include <QPointer>
#include <vector>

#include "platform/qt/ImageItem.h"
#include "platform/qt/ViewObject.h"

namespace leafund {

// The cards that lie behind a row, with their shadows, on the ground of the list. Opaque, so that
// nothing beneath it has to be drawn. A card keeps the width that the screen had when it was laid
// down; on the glass each spans the row, so that a list stays whole when its window is widened.
class CardItem : public ImageItem {
  Q_OBJECT
  QML_ELEMENT
  // The row's content view.
  Q_PROPERTY(leafund::ViewObject* view READ view WRITE setView NOTIFY viewChanged REQUIRED)
  Q_PROPERTY(QColor ground READ ground WRITE setGround NOTIFY groundChanged REQUIRED)

 public:
  using ImageItem::ImageItem;

  ViewObject* view() const { return view_; }
  void setView(ViewObject* view);
  QColor ground() const { return ground_; }
  void setGround(const QColor& ground);

 signals:
  void viewChanged();
  void groundChanged();

 protected:
  QImage paint(QSize pixels, double scale) override;

 private:
  void catchUp();

  QPointer<ViewObject> view_;
  QColor ground_ = Qt::white;
  std::vector<CardLook> looks_;  // of width 0: each spans the row
};

}  // namespace leafund
