#include "screens/lists/PictureFetch.h"

#include <string>
#include <utility>

#include "platform/dispatch/MainQueue.h"
#include "platform/foundation/FatalError.h"
#include "platform/foundation/NSURLSession.h"
#include "platform/graphics/DrawingContext.h"

namespace leafund {

NSURL pictureURL(std::string_view address, std::string_view screen) {
  auto url = NSURL::initWithString(address);
  if (!url) fatalError(screen, "not a URL: " + std::string(address));
  return *url;
}

void fetchPicture(const NSURL& url, ApplyPicture apply) {
  const auto task = NSURLSession::sharedSession().dataTaskWithRequestCompletionHandler(
      NSURLRequest::initWithURL(url),
      [apply = std::move(apply)](NSData body, std::optional<NSURLResponse>,
                                 std::optional<NSError> error) {
        if (!body || error) return;
        dispatch_async(dispatch_get_main_queue(), [apply, body] { apply(body); });
      });
  task->resume();
}

void fetchPicture(std::string_view address, std::string_view screen, ApplyPicture apply) {
  fetchPicture(pictureURL(address, screen), std::move(apply));
}

std::shared_ptr<const UIImage> redrawnImage(const std::shared_ptr<const UIImage>& image,
                                            CGSize size) {
  UIGraphicsBeginImageContextWithOptions(size, false, 0.0);
  image->drawInRect({0, 0, size.width, size.height});
  auto redrawn = UIGraphicsGetImageFromCurrentImageContext();
  if (!redrawn) fatalError("redrawnImage", "the drawing context holds no image");
  // The context stays open, deliberately: each call leaves one more on the main thread's stack.
  return redrawn;
}

}  // namespace leafund
