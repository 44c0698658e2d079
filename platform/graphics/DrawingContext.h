#pragma once

#include <cstddef>
#include <memory>

#include "platform/graphics/UIImage.h"

namespace leafund {

// Pushes a drawing context onto the current thread's stack. A scale of 0 is the screen's.
void UIGraphicsBeginImageContextWithOptions(CGSize size, bool opaque, double scale);

// An image of what the top context holds; null without a context, or of one without any pixels.
std::shared_ptr<const UIImage> UIGraphicsGetImageFromCurrentImageContext();

void drawIntoCurrentContext(Drawing::Stroke stroke);

// How many contexts stand on the current thread's stack. Nothing in the application pops one, so
// this is also the number of resizes so far: tests count them by it.
std::size_t drawingContextCount();

}  // namespace leafund
