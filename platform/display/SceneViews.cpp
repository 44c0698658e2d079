#include "platform/display/SceneViews.h"

#include <algorithm>
#include <initializer_list>

#include "platform/uikit/UITableViewCell.h"

namespace leafund {

namespace {

bool isRootOfChild(const UIView& view, const UIViewController& controller) {
  const auto& children = controller.childViewControllers();
  return std::any_of(children.begin(), children.end(),
                     [&](const auto& child) { return child->viewIfLoaded().get() == &view; });
}

void gather(const UIView& parent, const UIViewController& controller,
            std::vector<std::shared_ptr<UIView>>& views) {
  if (parent.kind() == ViewKind::Table) return;
  for (const auto& view : parent.subviews()) {
    if (isRootOfChild(*view, controller)) continue;
    if (!view->name().empty()) views.push_back(view);
    gather(*view, controller, views);
  }
}

}  // namespace

std::vector<std::shared_ptr<UIView>> namedViews(const UIViewController& controller) {
  std::vector<std::shared_ptr<UIView>> views;
  gather(*controller.viewIfLoaded(), controller, views);
  return views;
}

std::vector<CellPart> partsOf(const UITableViewCell& cell) {
  std::vector<CellPart> parts{{"content", cell.contentView()},
                              {"picture", cell.imageView()},
                              {"title", cell.textLabel()},
                              {"detail", cell.detailTextLabel()}};
  std::erase_if(parts, [](const CellPart& part) { return part.view == nullptr; });
  return parts;
}

}  // namespace leafund
