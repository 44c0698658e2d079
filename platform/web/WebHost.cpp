#include "platform/web/WebHost.h"

#include <utility>

#include "platform/foundation/NSURLSession.h"
#include "platform/uikit/UIApplication.h"
#include "platform/uikit/UINavigationController.h"
#include "platform/web/Bridge.h"

namespace leafund {

WebHost& WebHost::shared() {
  static auto& host = *new WebHost;
  return host;
}

int WebHost::run(UIApplication& application) {
  application.resize(size_, railWidth_);
  application.launch();
  application.becomeActive();
  return 0;
}

void WebHost::post(std::function<void()> step) {
  steps_.push_back(std::move(step));
  if (!std::exchange(awaitsDrain_, true)) page::wake();
}

void WebHost::drain() {
  awaitsDrain_ = false;
  for (auto count = steps_.size(); count > 0; --count) {
    auto step = std::move(steps_.front());
    steps_.pop_front();
    if (auto* application = UIApplication::current()) {
      application->turn(std::move(step));
    } else {
      step();
    }
  }
}

void WebHost::transfer(const NSURLRequest& request, CompletionHandler completion) {
  fetches_[++lastFetch_] = std::move(completion);
  const auto& address = request.URL().absoluteString();
  page::fetch(lastFetch_, address.data(), address.size(), NSURLSession::kIdleSeconds,
              static_cast<double>(NSURLSession::kMostBodyBytes));
}

void WebHost::complete(int fetch, const NSData& body, int status) {
  const auto found = fetches_.extract(fetch);
  if (!found) return;
  runInSession([&] {
    if (body) return found.mapped()(body, NSURLResponse{status}, std::nullopt);
    // Why, the browser tells nobody but its own console.
    found.mapped()(nullptr, std::nullopt, NSError{"no whole answer came"});
  });
}

void WebHost::runInSession(const std::function<void()>& work) {
  inSession_ = true;
  work();
  inSession_ = false;
}

double WebHost::screenScale() const { return page::screenScale(); }

void WebHost::show(const UINavigationController& navigation) {
  const auto change = pages_.follow(
      navigation, [](UIViewController& screen) { return std::make_unique<WebScene>(screen, 0); });
  const auto& top = *navigation.topViewController();
  Json json = Json::object();
  json.number("scene", change.shown.id()).number("child", change.shown.childFor(top));
  json.number("depth", navigation.viewControllers().size());
  json.text("title", navigation.barTitle(top)).flag("bar", navigation.showsBar(top));
  json.flag("back", navigation.canGoBack(top));
  json.text("backLabel", UINavigationController::kBackLabel);
  const auto told = json.whole();
  page::show(told.data(), told.size());
}

}  // namespace leafund
