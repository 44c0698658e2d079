// A letter typed into an input, whose bindings bench/letter counts.

#include <QKeyEvent>

#include "bench/Campaigns.h"
#include "bench/WindowBench.h"

namespace leafund {

// Not inlined and by this name, because callgrind is told to look at it alone.
[[gnu::noinline]] void countedLetter(WindowBench& window) {
  QKeyEvent press(QEvent::KeyPress, Qt::Key_E, Qt::NoModifier, "e");
  QCoreApplication::sendEvent(&window.window(), &press);
  QKeyEvent release(QEvent::KeyRelease, Qt::Key_E, Qt::NoModifier, "e");
  QCoreApplication::sendEvent(&window.window(), &release);
}

namespace {

int run() {
  WindowBench window;
  window.settle();
  auto& input = window.item("userEmail");
  input.forceActiveFocus(Qt::MouseFocusReason);
  window.type("userEmail", "wr");
  window.rest();
  countedLetter(window);
  demand(input.property("text") == "wre", "the letter was typed");
  const auto held = std::dynamic_pointer_cast<UITextInput>(window.view("userEmail"));
  demand(held->text() == "wre", "the toolkit heard of it");
  return 0;
}

}  // namespace
}  // namespace leafund

int main() { return leafund::run(); }
