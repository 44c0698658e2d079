#include <map>

#include "platform/foundation/FatalError.h"
#include "platform/uikit/UIApplication.h"

namespace leafund {

namespace {
std::map<std::string, DelegateMaker, std::less<>>& delegateClasses() {
  static std::map<std::string, DelegateMaker, std::less<>> classes;
  return classes;
}
}  // namespace

void registerDelegateClass(std::string_view className, DelegateMaker make) {
  delegateClasses().insert_or_assign(std::string(className), make);
}

int UIApplicationMain(int, char**, std::optional<std::string>, std::string_view delegateClassName,
                      Host& host, const UIStoryboard& storyboard) {
  const auto make = delegateClasses().find(delegateClassName);
  if (make == delegateClasses().end()) {
    fatalError("UIApplicationMain", "no class is named " + std::string(delegateClassName));
  }
  setCurrentHost(&host);
  // Never freed: a host may return from run() and go on, or leave by exit() from within.
  static auto& application = *new std::shared_ptr<UIApplication>;
  application = std::make_shared<UIApplication>(host, storyboard, make->second());
  return host.run(*application);
}

}  // namespace leafund
