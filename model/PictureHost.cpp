#include "model/PictureHost.h"

namespace leafund {
namespace {

constexpr std::string_view base = LEAFUND_PICTURE_HOST;

constexpr bool isMoreThan(std::string_view scheme) {
  return base.starts_with(scheme) && base.size() > scheme.size();
}

// A record holds an absolute address of the web, and one that does not parse stops the app when the
// picture is fetched. A mistaken base is better met here, when the deployment builds.
static_assert(isMoreThan("http://") || isMoreThan("https://"),
              "LEAFUND_PICTURE_HOST must be an absolute http or https address");
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
