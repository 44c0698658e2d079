#include "platform/foundation/Diagnostics.h"
#include "platform/qt/QtHost.h"
#include "shell/AppDelegate.h"
#include "shell/Storyboard.h"

int main(int argc, char** argv) {
  leafund::secureStandardStreams();
  // Not on this function's stack: a host may return from its loop and live on. Never freed: where
  // the display goes away, the process exits from within the host's loop.
  static auto& host = *new leafund::QtHost(argc, argv);
  return leafund::UIApplicationMain(argc, argv, std::nullopt,
                                    leafund::NSStringFromClass<leafund::AppDelegate>(), host,
                                    leafund::mainStoryboard());
}
