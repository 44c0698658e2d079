#pragma once

#include <QSize>
#include <QString>
#include <functional>
#include <memory>

#include "platform/qt/PageMaker.h"

namespace leafund {

// What the host is told of the application whose window it opens.
struct WindowSettings {
  QString title;
  QString desktopFile;  // its name without ".desktop"
  QString icon;         // a file or a resource; read after the first frame
  QString typeface;     // a family; the system's where it is not installed
  QSize startSize;      // in points
  // Called once there is a display. Pages become children of the item it is given.
  std::function<std::unique_ptr<PageMaker>(QQuickItem&)> makePages;
};

}  // namespace leafund
