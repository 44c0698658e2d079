#pragma once

#include <QImage>
#include <QSize>
#include <stop_token>

#include "platform/graphics/UIImage.h"
#include "platform/uikit/UIImageView.h"

namespace leafund {

// Makes the pixels of a picture at the size, in pixels, at which it is drawn: stretched to it, or
// scaled to cover it and cut evenly on both sides. Null when the size is empty or nothing of the
// body can be decoded; what is missing of a JPEG that was cut short is grey. RGB32 for a JPEG,
// premultiplied ARGB32 for all else.
//
// Nothing larger than the picture itself or the size asked for is made on the way, and a JPEG is
// decoded at a fraction of its size where that is enough. Soon after a stop was requested it
// returns, with whatever there is. On any thread, but on one at a time.
QImage picturePixels(const UIImage& image, QSize pixels, UIViewContentMode mode,
                     const std::stop_token& stop = {});

}  // namespace leafund
