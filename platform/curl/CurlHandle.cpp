#include "platform/curl/CurlHandle.h"

#include <algorithm>
#include <new>
#include <string_view>

namespace leafund {

namespace {

// Of all the heads of an answer together, interim ones and trailers included. Versions of libcurl
// differ: older ones read without an end, newer ones stop at 300 KB or 5,000 fields. These count
// every line and are met first, so that all versions do the same.
constexpr std::size_t kMostHeadBytes = std::size_t{300} * 1024;
constexpr int kMostHeadLines = 5000;

// The number has three digits (RFC 9112, 4). Of a longer one some versions of libcurl read the
// first three, and others refuse it.
bool isStatusLine(std::string_view line) {
  const auto isDigit = [line](std::size_t at) {
    return at < line.size() && line[at] >= '0' && line[at] <= '9';
  };
  return line.starts_with("HTTP/1.") && isDigit(7) && line.substr(8, 1) == " " && isDigit(9) &&
         isDigit(10) && isDigit(11) && !isDigit(12);
}

std::string_view trimmed(std::string_view text) {
  constexpr std::string_view blanks = " \t\r\n";
  text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
  text.remove_suffix(text.size() - (text.find_last_not_of(blanks) + 1));
  return text;
}

// `word` is in lower case.
bool beginsWith(std::string_view word, std::string_view text) {
  const auto isSame = [](char lower, char any) {
    return any == lower || (any >= 'A' && any <= 'Z' && any - 'A' + 'a' == lower);
  };
  return text.size() >= word.size() && std::equal(word.begin(), word.end(), text.begin(), isSame);
}

// The value, if the line begins with that name, which is in lower case and ends in a colon.
std::optional<std::string_view> valueOf(std::string_view name, std::string_view line) {
  if (!beginsWith(name, line)) return std::nullopt;
  return trimmed(line.substr(name.size()));
}

// Whether a body in these codings is sent as it is. libcurl would unpack any other, layer upon
// layer, and no limit of ours bounds that work: what unpacks to nothing never comes here.
bool arePlain(std::string_view codings) {
  while (!codings.empty()) {
    const std::size_t end = std::min(codings.find(','), codings.size());
    const std::string_view coding = trimmed(codings.substr(0, end));
    const bool isPlain = (coding.size() == 7 && beginsWith("chunked", coding)) ||
                         (coding.size() == 8 && beginsWith("identity", coding));
    if (!isPlain) return false;
    codings.remove_prefix(std::min(end + 1, codings.size()));
  }
  return true;
}

}  // namespace

CurlHandle::CurlHandle(const CurlLibrary& curl, Connections& connections, std::size_t mostBodyBytes)
    : curl_(curl),
      connections_(connections),
      mostBodyBytes_(mostBodyBytes),
      handle_(curl.easyInit()) {
  const auto set = [this](CURLoption option, auto value) {
    curl_.easySetopt(handle_, option, value);
  };
  // The success and error rules below were tried on HTTP/1.1.
  set(CURLOPT_HTTP_VERSION, long{CURL_HTTP_VERSION_1_1});
  set(CURLOPT_PROTOCOLS_STR, "http,https");
  set(CURLOPT_SSLVERSION, long{CURL_SSLVERSION_TLSv1_2});  // or newer, whatever the system allows
  // No proxy of the environment: a picture host on the loopback address must stay reachable, and
  // the proxy's error page would be taken for a picture.
  set(CURLOPT_PROXY, "");
  set(CURLOPT_USERAGENT, "Leafund");
  // Sent as a header: CURLOPT_ACCEPT_ENCODING would also decompress.
  headers_ = curl_.slistAppend(headers_, "Accept-Encoding: identity");
  headers_ = curl_.slistAppend(headers_, "Accept:");  // Not sent.
  set(CURLOPT_HTTPHEADER, headers_);
  set(CURLOPT_MAXFILESIZE_LARGE, static_cast<curl_off_t>(mostBodyBytes));
  set(CURLOPT_NOSIGNAL, 1L);
  set(CURLOPT_QUICK_EXIT, 1L);  // Does not wait for a name to be looked up.
  set(CURLOPT_OPENSOCKETFUNCTION, &openSocket);
  set(CURLOPT_OPENSOCKETDATA, this);
  set(CURLOPT_CLOSESOCKETFUNCTION, &Connections::close);
  set(CURLOPT_CLOSESOCKETDATA, &connections);
  set(CURLOPT_PREREQFUNCTION, &beforeRequest);
  set(CURLOPT_PREREQDATA, this);
  set(CURLOPT_HEADERFUNCTION, &readHead);
  set(CURLOPT_HEADERDATA, this);
  set(CURLOPT_WRITEFUNCTION, &readBody);
  set(CURLOPT_WRITEDATA, this);
}

CurlHandle::~CurlHandle() {
  curl_.easyCleanup(handle_);
  curl_.slistFreeAll(headers_);
}

void CurlHandle::aim(const WebAddress& address, Connections::Use use) {
  body_.clear();
  headBytes_ = 0;
  headLines_ = 0;
  length_.reset();
  maySpeakOfItsEnd_ = false;
  host_ = address.origin();
  use_ = use;
  usesAKeptConnection_ = false;
  lastSign_ = Clock::now();
  curl_.easySetopt(handle_, CURLOPT_URL, address.text().c_str());
  curl_.easySetopt(handle_, CURLOPT_FRESH_CONNECT, use == Connections::Use::Any ? 0L : 1L);
  curl_.easySetopt(handle_, CURLOPT_FORBID_REUSE, use == Connections::Use::Once ? 1L : 0L);
}

int CurlHandle::status() const {
  long status = 0;
  curl_.easyGetinfo(handle_, CURLINFO_RESPONSE_CODE, &status);
  return static_cast<int>(status);
}

curl_socket_t CurlHandle::socket() const {
  curl_socket_t socket = CURL_SOCKET_BAD;
  curl_.easyGetinfo(handle_, CURLINFO_ACTIVESOCKET, &socket);
  return socket;
}

bool CurlHandle::hadBytesBehind() const {
  return use_ != Connections::Use::Once && length_ && !maySpeakOfItsEnd_ &&
         socket() == CURL_SOCKET_BAD;
}

std::optional<std::string> CurlHandle::redirectLocation() const {
  const int code = status();
  const bool isRedirect = code == 301 || code == 302 || code == 303 || code == 307 || code == 308;
  curl_header* header = nullptr;
  if (!isRedirect ||
      curl_.easyHeader(handle_, "Location", 0, CURLH_HEADER, -1, &header) != CURLHE_OK) {
    return std::nullopt;
  }
  const std::string_view location = trimmed(header->value);
  if (location.empty()) return std::nullopt;
  return std::string(location);
}

curl_socket_t CurlHandle::openSocket(void* handle, curlsocktype, curl_sockaddr* address) {
  auto& self = *static_cast<CurlHandle*>(handle);
  return self.connections_.open(self.host_, *address);
}

// When there is a connection. An abort ends the fetch, and the connection.
int CurlHandle::beforeRequest(void* handle, char*, char*, int therePort, int herePort) {
  auto& self = *static_cast<CurlHandle*>(handle);
  long newConnections = 0;
  self.curl_.easyGetinfo(self.handle_, CURLINFO_NUM_CONNECTS, &newConnections);
  self.usesAKeptConnection_ = newConnections == 0;
  const bool isGood = !self.usesAKeptConnection_ || self.connections_.isQuiet(herePort, therePort);
  return isGood ? CURL_PREREQFUNC_OK : CURL_PREREQFUNC_ABORT;
}

bool CurlHandle::acceptsHeadLine(std::string_view line) {
  headBytes_ += line.size();
  ++headLines_;
  if (headBytes_ > kMostHeadBytes || headLines_ > kMostHeadLines) return false;
  if (line.starts_with("HTTP/") && !isStatusLine(line)) return false;
  if (line.starts_with("HTTP/1.0") || valueOf("connection:", line)) maySpeakOfItsEnd_ = true;
  if (!arePlain(valueOf("transfer-encoding:", line).value_or(""))) return false;
  // A body that is said to have two lengths has none that can be trusted; libcurl takes the last.
  const auto length = valueOf("content-length:", line);
  if (length && length_.value_or(std::string(*length)) != *length) return false;
  if (length) length_ = *length;
  return !length || length->find(',') == std::string_view::npos;  // a list of lengths
}

// Less than was given ends the fetch, with an error.
std::size_t CurlHandle::readHead(char* bytes, std::size_t one, std::size_t count, void* handle) {
  auto& self = *static_cast<CurlHandle*>(handle);
  self.lastSign_ = Clock::now();
  return self.acceptsHeadLine({bytes, one * count}) ? one * count : 0;
}

std::size_t CurlHandle::readBody(char* bytes, std::size_t one, std::size_t count, void* handle) {
  auto& self = *static_cast<CurlHandle*>(handle);
  self.lastSign_ = Clock::now();
  if (one * count > self.mostBodyBytes_ - self.body_.size()) return 0;
  try {
    self.body_.append(bytes, one * count);
  } catch (const std::bad_alloc&) {  // which must not leave through libcurl
    return 0;
  }
  return one * count;
}

}  // namespace leafund
