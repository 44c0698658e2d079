#include "interface/qml/LeafundWindow.h"
#include "platform/qt/QtHost.h"
#include "platform/qt/StandardStreams.h"
#include "shell/AppDelegate.h"
#include "shell/Storyboard.h"

int main(int argc, char** argv) {
  leafund::secureStandardStreams();
  // Not on this function's stack: a host may return from its loop and live on. Never freed: where
  // the display goes away, the process exits from within the host's loop.
  static auto& host = *new leafund::QtHost(argc, argv, leafund::leafundWindow());
  const auto delegate = leafund::NSStringFromClass<leafund::AppDelegate>();
  const auto& storyboard = leafund::mainStoryboard();
  return leafund::UIApplicationMain(argc, argv, std::nullopt, delegate, host, storyboard);
}
