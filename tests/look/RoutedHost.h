#pragma once

#include <string>
#include <utility>

#include "platform/Host.h"
#include "platform/foundation/NSURLRequest.h"

namespace leafund {

// A host that has all pictures fetched from one server, whatever host their addresses name: those
// of the catalogue name the one that the build was made for.
class RoutedHost : public Host {
 public:
  // `base` is the address of the server, without a slash at its end. The host outlives this one.
  RoutedHost(Host& host, std::string base) : host_(host), base_(std::move(base)) {}

  int run(UIApplication& application) override { return host_.run(application); }
  bool onMain() const override { return host_.onMain(); }
  void post(std::function<void()> step) override { host_.post(std::move(step)); }
  void transfer(const NSURLRequest& request, CompletionHandler completion) override {
    const std::string address = request.URL().absoluteString();
    const auto url = NSURL::initWithString(base_ + address.substr(address.rfind('/')));
    host_.transfer(NSURLRequest::initWithURL(url.value()), std::move(completion));
  }
  double screenScale() const override { return host_.screenScale(); }
  void show(const UINavigationController& navigation) override { host_.show(navigation); }

 private:
  Host& host_;
  std::string base_;
};

}  // namespace leafund
