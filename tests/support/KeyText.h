#pragma once

#include <QString>

namespace leafund {

// What a keyboard says of a key beside its name: an editor that is not kept from it writes it.
inline QString keyText(int key) {
  switch (key) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return QStringLiteral("\t");
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return QStringLiteral("\r");
    case Qt::Key_Space:
      return QStringLiteral(" ");
    default:
      return {};
  }
}

}  // namespace leafund
