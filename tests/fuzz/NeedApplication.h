#pragma once

#include <QCoreApplication>
#include <array>

namespace leafund::fuzz {

// Qt looks for its plug-ins, and for much else, beside an application object. What it has to say
// about strange bytes is not said: there is too much of it.
inline void needApplication() {
  static int count = 1;
  static std::array<char, 5> name{"fuzz"};
  static std::array<char*, 2> arguments{name.data(), nullptr};
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  if (QCoreApplication::instance() != nullptr) return;
  static const QCoreApplication application(count, arguments.data());
}

}  // namespace leafund::fuzz
