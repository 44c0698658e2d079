#pragma once

#include <QColor>
#include <QRectF>
#include <QString>
#include <memory>

#include "platform/graphics/UIImage.h"
#include "platform/qt/QtValues.h"
#include "platform/uikit/CALayer.h"
#include "platform/uikit/UIImageView.h"

namespace leafund {

// What a view shows, copied: a scene on its way out still draws when its views are gone. What a
// kind of view does not have stays as it is here. Lengths in points.
struct ViewLook {
  QString name;
  // What a screen reader calls it; a label that has none is read by its text alone, and one that
  // has is read by both.
  QString accessibleName;
  QRectF frame;
  CALayer layer;
  bool visible = true;

  // The words: of a label or an input its text, of a button or a tab its title.
  QString text;

  // Inputs.
  QString placeholder;
  QColor textColor = Qt::black;
  int inputHints = 0;  // Qt::InputMethodHints
  bool secure = false;
  bool masked = false;
  bool editing = false;
  bool showsMessage = false;

  // Progress, both from 0 to 1.
  double progress = 0;
  double progressFrom = 0;

  // Tabs.
  bool selected = false;
  QColor selectedTitleColor;
  QColor tintColor;

  // Tables.
  double contentHeight = 0;
  double contentOffset = 0;
  unsigned placements = 0;

  // Pictures.
  std::shared_ptr<const UIImage> image;
  UIViewContentMode contentMode = UIViewContentMode::ScaleToFill;

  bool operator==(const ViewLook&) const = default;
};

ViewLook lookOf(const UIView& view);

}  // namespace leafund
