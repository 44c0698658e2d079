#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "platform/foundation/NSURL.h"
#include "platform/graphics/Geometry.h"
#include "platform/graphics/UIImage.h"

namespace leafund {

// What is done with a body on the main thread. It owns the screen, and the cell, that the picture
// is for: both stay alive until it has run or the download has ended without a result.
using ApplyPicture = std::function<void(const NSData& body)>;

// The address as a URL; fatal when it is none. `screen` names who asked.
NSURL pictureURL(std::string_view address, std::string_view screen);

// Starts a download and returns at once. The body is applied later on the main thread, or never: an
// error or a missing body is passed over without a word, and the response is not looked at, so the
// body of an error page is applied like any other. Nothing is cached, nothing can be cancelled.
void fetchPicture(const NSURL& url, ApplyPicture apply);
void fetchPicture(std::string_view address, std::string_view screen, ApplyPicture apply);

// Redraws an image at exactly that size in points, stretched.
std::shared_ptr<const UIImage> redrawnImage(const std::shared_ptr<const UIImage>& image,
                                            CGSize size);

}  // namespace leafund
