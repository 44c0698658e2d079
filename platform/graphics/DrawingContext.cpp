#include "platform/graphics/DrawingContext.h"

#include <atomic>
#include <utility>

#include "platform/Host.h"

namespace leafund {

namespace {

// Only the top context can be drawn into or read, and no operation pops. So a buried context is
// nothing but a place in the stack, and the stack is the top one and the number of those below:
// the millionth resize costs what the first did.
struct ContextStack {
  std::size_t buried = 0;
  std::unique_ptr<Drawing> top;
  ContextStack* older = nullptr;  // some other thread's
};

ContextStack& contexts() {
  // Kept when its thread ends, since not every platform runs destructors there; it stays reachable.
  static std::atomic<ContextStack*> newest;
  thread_local ContextStack* stack = nullptr;
  if (stack == nullptr) {
    stack = new ContextStack;
    stack->older = newest.exchange(stack);
  }
  return *stack;
}

}  // namespace

void UIGraphicsBeginImageContextWithOptions(CGSize size, bool opaque, double scale) {
  auto& stack = contexts();
  if (stack.top) ++stack.buried;
  stack.top = std::make_unique<Drawing>();
  stack.top->size = size;
  stack.top->opaque = opaque;
  stack.top->scale = scale == 0.0 ? currentHost().screenScale() : scale;
}

std::shared_ptr<const UIImage> UIGraphicsGetImageFromCurrentImageContext() {
  const auto& top = contexts().top;
  const bool empty = !top || top->size.width <= 0 || top->size.height <= 0;
  return empty ? nullptr : UIImage::withDrawing(*top);
}

void drawIntoCurrentContext(Drawing::Stroke stroke) {
  if (auto& top = contexts().top) top->strokes.push_back(std::move(stroke));
}

std::size_t drawingContextCount() {
  const auto& stack = contexts();
  return stack.buried + (stack.top ? 1 : 0);
}

}  // namespace leafund
