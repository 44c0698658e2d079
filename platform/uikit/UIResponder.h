#pragma once

#include <memory>

namespace leafund {

// The root of what can send or receive an action: views, controllers and the application's own
// objects. Always held by std::shared_ptr.
class UIResponder : public std::enable_shared_from_this<UIResponder> {
 public:
  UIResponder() = default;
  UIResponder(const UIResponder&) = delete;
  UIResponder& operator=(const UIResponder&) = delete;
  virtual ~UIResponder() = default;

 protected:
  template <class T>
  static std::shared_ptr<T> shared(T* self) {
    return std::static_pointer_cast<T>(self->UIResponder::shared_from_this());
  }
};

// Who caused an action or a segue; null when nobody is named.
using Sender = std::shared_ptr<UIResponder>;

}  // namespace leafund
