#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "platform/foundation/FatalError.h"
#include "platform/uikit/UINavigationController.h"
#include "platform/uikit/UIViewController.h"

namespace leafund {

// The first view of that name below the root, in reading order; null where there is none.
inline std::shared_ptr<UIView> descendant(const UIView& root, std::string_view name) {
  for (const auto& view : root.subviews()) {
    if (view->name() == name) return view;
    if (auto found = descendant(*view, name)) return found;
  }
  return nullptr;
}

// A view of the screen on top of the stack, by its name; fatal where there is none.
inline std::shared_ptr<UIView> viewNamed(const UINavigationController& navigation,
                                         std::string_view name) {
  auto found = descendant(*navigation.topViewController()->view(), name);
  if (!found) fatalError("test", "no view is named " + std::string(name));
  return found;
}

// The screen that the user sees: the one on top, or the child that it shows.
inline std::shared_ptr<UIViewController> shownScreen(const UINavigationController& navigation) {
  auto screen = navigation.topViewController();
  while (auto child = screen->shownChild()) screen = std::move(child);
  return screen;
}

}  // namespace leafund
