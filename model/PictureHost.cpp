#include "model/PictureHost.h"

namespace leafund {
namespace {

constexpr std::string_view base = LEAFUND_PICTURE_HOST;

// A record holds an absolute http address, and one that does not parse stops the app when the
// picture is fetched. A mistaken base is better met here, when the deployment builds.
static_assert(base.starts_with("http://") && base.size() > std::string_view("http://").size(),
              "LEAFUND_PICTURE_HOST must be an absolute http address");
static_assert(!base.ends_with('/'), "LEAFUND_PICTURE_HOST must not end with a slash");

}  // namespace

std::string pictureAddress(std::string_view fileName) {
  std::string address(base);
  address += '/';
  address += fileName;
  return address;
}

std::string placeholderPictureAddress() { return pictureAddress("placeholder.jpg"); }

}  // namespace leafund
