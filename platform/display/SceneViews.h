#pragma once

#include <memory>
#include <vector>

#include "platform/uikit/UIViewController.h"

namespace leafund {

class UITableViewCell;

// The named views of the screen's scene, each before those inside it. Neither the rows of a table,
// which come and go, nor another screen's views. The screen's view must be loaded.
std::vector<std::shared_ptr<UIView>> namedViews(const UIViewController& controller);

// A part of a cell, by the name that skins know it by.
struct CellPart {
  const char* name;
  std::shared_ptr<UIView> view;
};

// "content", "picture", "title" and "detail": those that the cell's style has.
std::vector<CellPart> partsOf(const UITableViewCell& cell);

}  // namespace leafund
