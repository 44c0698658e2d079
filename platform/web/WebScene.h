#pragma once

#include <memory>
#include <vector>

#include "platform/display/ScreenPages.h"
#include "platform/web/WebView.h"

namespace leafund {

// A screen on the page: the element made from the template that bears its class's name.
class WebScene {
 public:
  // `place` is the scene inside which it is shown, 0 for one of its own.
  WebScene(UIViewController& controller, int place);
  WebScene(const WebScene&) = delete;
  WebScene& operator=(const WebScene&) = delete;
  ~WebScene();

  int id() const { return id_; }
  // The scene of the screen that the controller shows inside itself, made where there is none yet;
  // 0 where it shows none.
  int childFor(const UIViewController& controller);

 private:
  int id_;
  std::vector<std::unique_ptr<WebView>> views_;  // the first is the root's
  ScreenPages<WebScene> children_;
};

}  // namespace leafund
