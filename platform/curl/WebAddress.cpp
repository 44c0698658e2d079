#include "platform/curl/WebAddress.h"

#include <algorithm>
#include <memory>
#include <string_view>

namespace leafund {

namespace {

// A host must follow the slashes. libcurl would take one behind any number of them.
bool namesAHost(std::string_view behindTheColon) {
  return behindTheColon.starts_with("//") && !behindTheColon.starts_with("///");
}

// A scheme, a colon and what must follow it, or a reference without a scheme.
bool isSound(std::string_view reference) {
  const std::size_t end = reference.find_first_of(":/?#");
  if (end != std::string_view::npos && reference[end] == ':') {
    return namesAHost(reference.substr(end + 1));
  }
  return !reference.starts_with("//") || namesAHost(reference);
}

std::string escaped(unsigned char byte) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  return {'%', digits[byte >> 4], digits[byte & 15]};
}

// Up to the fragment, for which libcurl 7.88 would leave the last name of the path out.
std::string mended(std::string_view location) {
  std::string result;
  bool beforeTheQuery = true;
  for (const char byte : location.substr(0, location.find('#'))) {
    if (byte == '?') beforeTheQuery = false;
    if (byte == '\\' && beforeTheQuery) {
      result += '/';
    } else if (byte > ' ' && byte <= '~') {
      result += byte;
    } else if (byte != '\t') {
      result += escaped(static_cast<unsigned char>(byte));
    }
  }
  return result;
}

std::string lowerCase(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), [](char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
  });
  return text;
}

// Empty when there is no such part.
std::string part(const CurlLibrary& curl, CURLU* url, CURLUPart which, unsigned flags = 0) {
  char* text = nullptr;
  if (curl.urlGet(url, which, &text, flags) != CURLUE_OK) return {};
  std::string result(text);
  curl.free(text);
  return result;
}

}  // namespace

std::optional<WebAddress> WebAddress::read(const CurlLibrary& curl, const std::string& text) {
  return resolved(curl, nullptr, text);
}

std::optional<WebAddress> WebAddress::target(const CurlLibrary& curl,
                                             const std::string& location) const {
  const std::string reference = mended(location);
  return reference.empty() ? *this : resolved(curl, text_.c_str(), reference);
}

std::optional<WebAddress> WebAddress::resolved(const CurlLibrary& curl, const char* base,
                                               const std::string& reference) {
  if (!isSound(reference)) return std::nullopt;
  const std::unique_ptr<CURLU, decltype(curl.urlCleanup)> url(curl.url(), curl.urlCleanup);
  if (base != nullptr) curl.urlSet(url.get(), CURLUPART_URL, base, 0);
  if (curl.urlSet(url.get(), CURLUPART_URL, reference.c_str(), 0) != CURLUE_OK) return std::nullopt;
  const std::string scheme = part(curl, url.get(), CURLUPART_SCHEME);
  if (scheme != "http" && scheme != "https") return std::nullopt;
  for (const CURLUPart unsent :
       {CURLUPART_USER, CURLUPART_PASSWORD, CURLUPART_OPTIONS, CURLUPART_FRAGMENT}) {
    curl.urlSet(url.get(), unsent, nullptr, 0);
  }
  WebAddress address;
  address.text_ = part(curl, url.get(), CURLUPART_URL);
  address.origin_ = scheme + "://" + lowerCase(part(curl, url.get(), CURLUPART_HOST)) + ":" +
                    part(curl, url.get(), CURLUPART_PORT, CURLU_DEFAULT_PORT);
  if (address.text_.empty()) return std::nullopt;
  return address;
}

}  // namespace leafund
