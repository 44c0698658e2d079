#include <iostream>
#include <sstream>

#include "tests/random/Comparison.h"

// The reference for users who drive what is shipped from outside: reads an action a line and
// answers with the lines that are printed for it and with what the screen shown holds, up to a
// line that is a single dot. Fields of a line are divided by tabs.
namespace leafund::random {
namespace {

const char* wordOf(const View& view) {
  switch (view.kind) {
    case ViewKind::Button:
      return "button";
    case ViewKind::Tab:
      return "tab";
    case ViewKind::Label:
      return "label";
    case ViewKind::Field:
    case ViewKind::Area:
      return view.editable ? "input" : "label";
    default:
      return nullptr;
  }
}

void tell(const Screen& screen) {
  for (const auto& view : screen.views) {
    const char* kind = wordOf(view);
    if (kind == nullptr) continue;
    const bool masked = view.secure && !view.showsMessage();
    std::cout << kind << '\t' << view.name << '\t' << view.hidden << '\t' << view.selected << '\t'
              << masked << '\t' << view.spoken << '\t' << view.text << '\n';
  }
  if (!screen.table) return;
  for (const auto& [row, object] : screen.table->shown) {
    std::cout << "row\t" << row << '\t' << object->title << '\n';
  }
}

Action parsed(const std::string& line) {
  std::istringstream words(line);
  std::string verb, name, text;
  std::getline(words, verb, '\t');
  std::getline(words, name, '\t');
  std::getline(words, text, '\t');
  if (verb == "row") return {.kind = ActionKind::TapRow, .number = std::stol(name)};
  if (verb == "back") return {.kind = ActionKind::GoBack};
  const auto kind = verb == "type"    ? ActionKind::Type
                    : verb == "enter" ? ActionKind::BeginEditing
                                      : ActionKind::Tap;
  return {.kind = kind, .name = name, .text = text};
}

}  // namespace
}  // namespace leafund::random

int main() {
  using namespace leafund::random;
  const auto wording = wordingOfTheApplication();
  // So high that every row is in sight: where the real list stands does not matter then.
  ReferenceApp reference(wording, 390, 100'000);
  for (std::string line; std::getline(std::cin, line);) {
    reference.printed.clear();
    if (!line.empty()) reference.perform(parsed(line));
    std::istringstream printed(reference.printed);
    for (std::string each; std::getline(printed, each);) std::cout << "printed\t" << each << '\n';
    std::cout << "screen\t" << className(reference.top().scene) << '\n';
    std::cout << "back\t" << reference.canGoBack(reference.top()) << '\n';
    tell(reference.top());
    if (&reference.shown() != &reference.top()) tell(reference.shown());
    std::cout << "." << std::endl;
  }
}
