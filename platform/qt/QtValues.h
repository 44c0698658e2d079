#pragma once

#include <QColor>
#include <QString>
#include <string>

#include "platform/uikit/CALayer.h"

namespace leafund {

// The toolkit's values as Qt's.

inline QString qtText(const std::string& utf8) { return QString::fromStdString(utf8); }

inline QColor qtColor(const CGColor& color) {
  return QColor::fromRgbF(color.red, color.green, color.blue, color.alpha);
}

}  // namespace leafund
