#include "tests/support/HeadlessApplication.h"

#include <gtest/gtest.h>

#include "platform/uikit/UILabel.h"
#include "platform/uikit/UITableView.h"
#include "platform/uikit/UITableViewCell.h"
#include "tests/support/ViewNamed.h"

namespace leafund {

HeadlessApplication::HeadlessApplication(const UIStoryboard& storyboard, CGSize size)
    : host(size), application(std::make_shared<UIApplication>(host, storyboard, delegate)) {
  host.run(*application);
}

std::shared_ptr<UIViewController> HeadlessApplication::shown() { return shownScreen(navigation()); }

std::vector<std::string> HeadlessApplication::stack() {
  std::vector<std::string> names;
  for (const auto& screen : navigation().viewControllers()) names.push_back(screen->className());
  return names;
}

std::shared_ptr<UIView> HeadlessApplication::view(std::string_view name) {
  return viewNamed(navigation(), name);
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
