#include "tests/support/HeadlessApplication.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "platform/uikit/UILabel.h"
#include "platform/uikit/UITabContainer.h"
#include "platform/uikit/UITableView.h"
#include "platform/uikit/UITableViewCell.h"

namespace leafund {

namespace {

std::shared_ptr<UIView> descendant(const UIView& root, std::string_view name) {
  for (const auto& view : root.subviews()) {
    if (view->name() == name) return view;
    if (auto found = descendant(*view, name)) return found;
  }
  return nullptr;
}

}  // namespace

HeadlessApplication::HeadlessApplication(const UIStoryboard& storyboard, CGSize size)
    : host(size), application(std::make_shared<UIApplication>(host, storyboard, delegate)) {
  host.run(*application);
}

std::shared_ptr<UIViewController> HeadlessApplication::shown() {
  const auto& top = navigation().topViewController();
  const auto tabs = top->tabContainer();
  return tabs ? tabs->selectedViewController() : top;
}

std::vector<std::string> HeadlessApplication::stack() {
  std::vector<std::string> names;
  for (const auto& screen : navigation().viewControllers()) names.push_back(screen->className());
  return names;
}

std::shared_ptr<UIView> HeadlessApplication::view(std::string_view name) {
  auto found = descendant(*navigation().topViewController()->view(), name);
  if (!found) throw std::out_of_range("no view is named " + std::string(name));
  return found;
}

std::string HeadlessApplication::text(std::string_view name) {
  const auto found = view(name);
  if (const auto label = std::dynamic_pointer_cast<UILabel>(found)) return label->text();
  return std::dynamic_pointer_cast<UITextInput>(found)->text();
}

std::vector<std::string> HeadlessApplication::rowTitles() {
  std::vector<std::string> titles;
  const auto table = std::dynamic_pointer_cast<UITableView>(shown()->view());
  for (const auto& [row, cell] : table->visibleCells()) titles.push_back(cell->textLabel()->text());
  return titles;
}

void HeadlessApplication::type(std::string_view name, std::string text) {
  const auto input = viewAs<UITextInput>(name);
  application->beginEditing(input);
  application->edit(input, std::move(text));
}

void HeadlessApplication::tapRow(std::ptrdiff_t row) {
  const auto table = std::dynamic_pointer_cast<UITableView>(shown()->view());
  application->tap(table->visibleCells().at(row));
}

void HeadlessApplication::scroll(double offset) {
  application->scroll(std::dynamic_pointer_cast<UITableView>(shown()->view()), offset);
}

void HeadlessApplication::signIn() {
  type("userEmail", "wren@example.org");
  type("password", "secret");
  tap("signInButton");
}

}  // namespace leafund
