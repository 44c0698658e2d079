#pragma once

#include <QtQmlIntegration/qqmlintegration.h>

#include "platform/qt/ViewImageItem.h"

namespace leafund {

// The picture of an image view, cut and framed as its layer says, on a quiet ground where no
// picture has come.
class PictureItem : public ViewImageItem {
  Q_OBJECT
  QML_ELEMENT

 public:
  using ViewImageItem::ViewImageItem;

 protected:
  QImage paint(QSize pixels, double scale) override;
  void catchUp() override;

 private:
  std::shared_ptr<const UIImage> image_;
  CALayer layer_;
};

}  // namespace leafund
