#pragma once

#include <memory>
#include <optional>

#include "platform/graphics/Geometry.h"
#include "platform/uikit/UIView.h"
#include "tests/random/Action.h"

namespace leafund::random {

// A user event as it reaches the application, before it is taken up.
struct UserEvent {
  ActionKind kind = ActionKind::Tap;
  std::shared_ptr<UIView> view =
      {};  // null where it has none, where that is gone, and where a list has moved since
  std::string text = {};
  double offset = 0;
  CGSize size = {};
  double railWidth = 0;
};

class WayInListener {
 public:
  virtual ~WayInListener() = default;
  // False keeps a tap from the application.
  virtual bool arrives(const UserEvent& event) = 0;
  // The application has come to rest again.
  virtual void turnIsOver() = 0;
};

// Who hears of every call that a host makes of the application's user events. The calls are wrapped
// by the linker (--wrap, in CMakeLists.txt), so that the application needs no hook for tests. None
// where `listener` is null.
void listenAtTheWayIn(WayInListener* listener);

}  // namespace leafund::random
