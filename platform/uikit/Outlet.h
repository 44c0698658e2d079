#pragma once

#include <memory>
#include <string>

#include "platform/uikit/UIViewController.h"

namespace leafund {

// A named way from a controller to a view of its scene. It registers with its controller, so that a
// test can tell whether a scene connects them all.
class OutletBase {
 public:
  OutletBase(UIViewController* owner, const char* name);
  OutletBase(const OutletBase&) = delete;
  OutletBase& operator=(const OutletBase&) = delete;
  virtual ~OutletBase() = default;

  std::string name() const { return name_; }
  virtual bool connected() const = 0;

 protected:
  [[noreturn]] void absent() const;

 private:
  UIViewController* owner_;
  const char* name_;
};

// Weak: the view belongs to the view hierarchy. Using an absent one is fatal, and the error says
// which outlet of which screen it is.
template <class View>
class Outlet final : public OutletBase {
 public:
  using OutletBase::OutletBase;
  void connect(const std::shared_ptr<View>& view) { view_ = view; }
  bool connected() const override { return !view_.expired(); }
  std::shared_ptr<View> operator->() const { return get(); }  // alive for the whole expression
  std::shared_ptr<View> get() const {
    if (auto view = view_.lock()) return view;
    absent();
  }

 private:
  std::weak_ptr<View> view_;
};

// An outlet that keeps its view alive.
template <class View>
class StrongOutlet final : public OutletBase {
 public:
  using OutletBase::OutletBase;
  void connect(std::shared_ptr<View> view) { view_ = std::move(view); }
  bool connected() const override { return view_ != nullptr; }
  const std::shared_ptr<View>& get() const { return view_; }

 private:
  std::shared_ptr<View> view_;
};

}  // namespace leafund
