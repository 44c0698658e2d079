#include "platform/qt/CurlHandle.h"

namespace leafund {

namespace {

// Of all the heads of an answer together, interim ones and trailers included, which libcurl would
// read without an end; as much as its later versions take of one.
constexpr std::size_t kMostHeadBytes = std::size_t{300} * 1024;

}  // namespace

CurlHandle::CurlHandle(const CurlLibrary& curl, std::size_t mostBodyBytes)
    : curl_(curl), mostBodyBytes_(mostBodyBytes), handle_(curl.easyInit()) {
  const auto set = [this](CURLoption option, auto value) {
    curl_.easySetopt(handle_, option, value);
  };
  // What an answer is told from an error by below was tried on HTTP/1.1.
  set(CURLOPT_HTTP_VERSION, long{CURL_HTTP_VERSION_1_1});
  set(CURLOPT_PROTOCOLS_STR, "http,https");
  // Nothing around the application decides whom it asks, and no picture host on the loopback is
  // beyond reach because the system has a proxy, whose refusal would be taken for a picture.
  set(CURLOPT_PROXY, "");
  set(CURLOPT_USERAGENT, "Leafund");
  // Said in a header and not by libcurl's option, with which it would unpack what comes packed all
  // the same.
  headers_ = curl_.slistAppend(headers_, "Accept-Encoding: identity");
  headers_ = curl_.slistAppend(headers_, "Accept:");  // Not sent.
  set(CURLOPT_HTTPHEADER, headers_);
  set(CURLOPT_MAXFILESIZE_LARGE, static_cast<curl_off_t>(mostBodyBytes));
  set(CURLOPT_NOSIGNAL, 1L);
  set(CURLOPT_QUICK_EXIT, 1L);  // Does not wait for a name to be looked up.
  set(CURLOPT_HEADERFUNCTION, &readHead);
  set(CURLOPT_HEADERDATA, this);
  set(CURLOPT_WRITEFUNCTION, &readBody);
  set(CURLOPT_WRITEDATA, this);
}

CurlHandle::~CurlHandle() {
  curl_.easyCleanup(handle_);
  curl_.slistFreeAll(headers_);
}

bool CurlHandle::isFetchable(const QUrl& url) {
  const bool isWeb = url.scheme() == u"http" || url.scheme() == u"https";
  return url.isValid() && isWeb && !url.host().isEmpty();
}

void CurlHandle::aim(const QUrl& url) {
  url_ = url;
  body_.clear();
  headBytes_ = 0;
  lastSign_ = Clock::now();
  // A name and a password have no place in a web address (RFC 9110, 4.2.4), and none is sent.
  const QByteArray address = url.toEncoded(QUrl::RemoveUserInfo | QUrl::RemoveFragment);
  curl_.easySetopt(handle_, CURLOPT_URL, address.constData());
}

int CurlHandle::status() const {
  long status = 0;
  curl_.easyGetinfo(handle_, CURLINFO_RESPONSE_CODE, &status);
  return static_cast<int>(status);
}

std::optional<QUrl> CurlHandle::redirectTarget() const {
  const int code = status();
  const bool isRedirect = code == 301 || code == 302 || code == 303 || code == 307 || code == 308;
  curl_header* location = nullptr;
  if (!isRedirect ||
      curl_.easyHeader(handle_, "Location", 0, CURLH_HEADER, -1, &location) != CURLHE_OK) {
    return std::nullopt;
  }
  const QString said = QString::fromUtf8(location->value).trimmed();
  if (said.isEmpty()) return std::nullopt;
  const QUrl target(said, QUrl::StrictMode);
  return target.isValid() ? url_.resolved(target) : QUrl();
}

// Less than was given ends the fetch, with an error.
std::size_t CurlHandle::readHead(char*, std::size_t one, std::size_t count, void* handle) {
  auto& self = *static_cast<CurlHandle*>(handle);
  self.lastSign_ = Clock::now();
  self.headBytes_ += one * count;
  return self.headBytes_ <= kMostHeadBytes ? one * count : 0;
}

std::size_t CurlHandle::readBody(char* bytes, std::size_t one, std::size_t count, void* handle) {
  auto& self = *static_cast<CurlHandle*>(handle);
  self.lastSign_ = Clock::now();
  if (one * count > self.mostBodyBytes_ - self.body_.size()) return 0;
  self.body_.append(bytes, one * count);
  return one * count;
}

}  // namespace leafund
