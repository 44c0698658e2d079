#pragma once

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

#include "bench/Campaigns.h"
#include "bench/SilentHost.h"
#include "platform/uikit/UINavigationController.h"
#include "platform/uikit/UITabContainer.h"
#include "platform/uikit/UITableView.h"
#include "platform/uikit/UITableViewCell.h"
#include "shell/AppDelegate.h"
#include "shell/Storyboard.h"

namespace leafund {

// The whole application on the silent host, launched and signed in.
class SilentApplication {
 public:
  SilentApplication() {
    host.run(*application);
    type("userEmail", "wren@example.org");
    type("password", "secret");
    tap("signInButton");
    demand(shown("TabBarVC"), "the home screen is shown");
  }

  bool shown(std::string_view className) const { return top().className() == className; }

  std::shared_ptr<UITableView> table() const {
    return std::dynamic_pointer_cast<UITableView>(top().shownChild()->view());
  }
  void tap(std::string_view name) { application->tap(view(name)); }
  void type(std::string_view name, std::string text) {
    const auto input = std::dynamic_pointer_cast<UITextInput>(view(name));
    application->beginEditing(input);
    application->edit(input, std::move(text));
  }
  void openRow(std::ptrdiff_t row) {
    application->scroll(table(), 160.0 * static_cast<double>(row));
    application->tap(table()->visibleCells().at(row));
    demand(shown("OneCampaignViewController"), "the campaign is shown");
  }

  SilentHost host;
  std::shared_ptr<UIApplication> application =
      std::make_shared<UIApplication>(host, mainStoryboard(), std::make_shared<AppDelegate>());

 private:
  UIViewController& top() const { return *application->navigation()->topViewController(); }

  std::shared_ptr<UIView> view(std::string_view name) const {
    auto found = descendant(*top().view(), name);
    demand(found != nullptr, name);
    return found;
  }
  static std::shared_ptr<UIView> descendant(const UIView& root, std::string_view name) {
    for (const auto& view : root.subviews()) {
      if (view->name() == name) return view;
      if (auto found = descendant(*view, name)) return found;
    }
    return nullptr;
  }
};

}  // namespace leafund
