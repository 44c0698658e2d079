#pragma once

#include <string>
#include <string_view>

namespace leafund {

// The absolute address of a picture on the picture host. Which host that is, the deployment decides
// when it builds: the CMake cache variable LEAFUND_PICTURE_HOST, compiled in.
std::string pictureAddress(std::string_view fileName);

// What the update page shows for a campaign without an update.
std::string placeholderPictureAddress();

}  // namespace leafund
