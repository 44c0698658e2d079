#include "platform/display/Cards.h"

#include <algorithm>

namespace leafund {

namespace {

// Whatever else lies in a row is of a derived class or has no background colour.
bool isCard(const UIView& view) {
  return view.kind() == ViewKind::Plain && view.layer().backgroundColor().has_value();
}

}  // namespace

// A row gathers a card a showing and keeps them all, each new one at the back. So those added since
// the last time stand at the front of the list, and taking costs the same after a million. A look
// that is drawn already is not drawn again.
void Cards::take(const UIView& view) {
  const auto& subviews = view.subviews();
  std::size_t added = subviews.size() - std::min(subviews.size(), known_);
  known_ = subviews.size();
  while (added > 0) {
    const auto& candidate = *subviews[--added];
    if (!isCard(candidate)) continue;
    const CardLook card{candidate.frame(), candidate.layer()};
    if (std::find(looks_.begin(), looks_.end(), card) == looks_.end()) {
      looks_.insert(looks_.begin(), card);
    }
  }
}

}  // namespace leafund
