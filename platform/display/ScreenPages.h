#pragma once

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>
#include <vector>

#include "platform/uikit/UINavigationController.h"

namespace leafund {

// A host's pages, one for each screen it has shown and may show again: those of a stack, or those
// of the children that a screen shows in turn. A page belongs to the view that the screen had when
// the page was made; a screen whose view was loaded anew gets a new page.
template <class Page>
class ScreenPages {
 public:
  struct Change {
    Page& shown;
    bool came;                                // made for this showing
    std::vector<std::unique_ptr<Page>> gone;  // of screens that left the stack
  };

  // Null where the screen has none.
  Page* pageOf(const UIViewController& controller) const {
    const auto known = std::find_if(places_.begin(), places_.end(),
                                    [&](const Place& place) { return place.shows(controller); });
    return known == places_.end() ? nullptr : known->page.get();
  }

  // The screen's page; where it has none, `make(controller)` makes it, a std::unique_ptr. The view
  // is loaded then.
  template <class Make>
  Page& pageFor(UIViewController& controller, Make make) {
    if (auto* known = pageOf(controller)) return *known;
    const auto& root = controller.view();
    places_.push_back({root, make(controller)});
    return *places_.back().page;
  }

  // The page of the stack's top screen, and the pages that the stack needs no more.
  template <class Make>
  Change follow(const UINavigationController& navigation, Make make) {
    auto gone = takeGone(navigation);
    const auto known = places_.size();
    auto& shown = pageFor(*navigation.topViewController(), make);
    return {shown, places_.size() > known, std::move(gone)};
  }

  template <class Work>
  void forEach(Work work) const {
    for (const auto& place : places_) work(*place.page);
  }

 private:
  struct Place {
    std::weak_ptr<UIView> root;
    std::unique_ptr<Page> page;
    bool shows(const UIViewController& controller) const {
      const auto view = root.lock();
      return view && view == controller.viewIfLoaded();
    }
  };

  std::vector<std::unique_ptr<Page>> takeGone(const UINavigationController& navigation) {
    const auto& stack = navigation.viewControllers();
    const auto stays = [&](const Place& place) {
      return std::any_of(stack.begin(), stack.end(),
                         [&](const auto& screen) { return place.shows(*screen); });
    };
    const auto first = std::stable_partition(places_.begin(), places_.end(), stays);
    std::vector<std::unique_ptr<Page>> gone;
    std::transform(first, places_.end(), std::back_inserter(gone),
                   [](Place& place) { return std::move(place.page); });
    places_.erase(first, places_.end());
    return gone;
  }

  std::vector<Place> places_;
};

}  // namespace leafund
