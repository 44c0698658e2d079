#include "platform/web/Bridge.h"
#include "platform/web/WebHost.h"
#include "shell/AppDelegate.h"
#include "shell/Storyboard.h"

// Called by the page once it is there, with the size of its content and the width of tabs at its
// side, in points.
LEAFUND_TO_PAGE(start) void start(double width, double height, double rail) {
  auto& host = leafund::WebHost::shared();
  host.setSize({width, height}, rail);
  const auto delegate = leafund::NSStringFromClass<leafund::AppDelegate>();
  leafund::UIApplicationMain(0, nullptr, std::nullopt, delegate, host, leafund::mainStoryboard());
}
