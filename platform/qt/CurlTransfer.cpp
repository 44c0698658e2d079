#include "platform/qt/QtTransfer.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEvent>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrl>
#include <future>
#include <map>
#include <mutex>
#include <optional>
#include <tuple>
#include <utility>
#include <vector>

namespace leafund {

namespace {

// How much Qt reads ahead, in bytes. Without a bound, what it has read of an endless body piles up
// between its thread and ours: measured, 311 MB at the peak instead of 155 MB.
constexpr qint64 kMostUnread = 256 * 1024;

// How long the end waits for Qt's own thread. That one hears nothing while it reads a head, or the
// size of a chunk, which it does byte by byte for as long as any come; Qt waits 5 s for it.
constexpr std::chrono::milliseconds kFarewell{300};

struct Fetch {
  std::string address;
  CompletionHandler completion;
  int redirects = 0;
  std::string body = {};
  std::string refusal = {};  // Why it was broken off here; empty when it was not.
};

// By way of a whitelist: the network classes of Qt would read a file: address, too.
bool isFetchable(const QUrl& url) {
  const bool isWeb = url.scheme() == u"http" || url.scheme() == u"https";
  return url.isValid() && isWeb && !url.host().isEmpty();
}

QNetworkRequest plainRequest(const QUrl& url) {
  QNetworkRequest request(url);
  request.setHeader(QNetworkRequest::UserAgentHeader, QByteArrayLiteral("Leafund"));
  // Otherwise Qt asks for compression, and loses a body that does not decompress.
  request.setRawHeader("Accept-Encoding", "identity");
  // Qt cannot be told to leave this header out: without one it sends the user's language. The star
  // says what its absence would, "any" (RFC 9110, 12.5.4).
  request.setRawHeader("Accept-Language", "*");
  request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
  request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
  // No credentials of the user's machine (Negotiate, NTLM) for whoever asks for them.
  request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
  // What tells a response from an error below was tried on HTTP/1.1.
  request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
  return request;
}

int statusOf(const QNetworkReply& reply) {
  return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

// Qt takes a connection that ended early for the end of the body when it sees the close before it
// has read the last bytes: 17 of 3,000 bodies cut short at random moments came without an error.
bool hasSaidLength(const QNetworkReply& reply, const std::string& body) {
  const int status = statusOf(reply);
  const bool hasNoBody = status == 204 || status == 304;
  if (hasNoBody || reply.hasRawHeader("Transfer-Encoding")) return true;
  const QVariant length = reply.header(QNetworkRequest::ContentLengthHeader);
  return !length.isValid() || length.toULongLong() == body.size();
}

// Whether the server's answer arrived whole. Qt also calls a status of 400 and up an error, though
// by codes of its own: those up to 99 are errors of the network.
bool isResponse(const QNetworkReply& reply, const std::string& body) {
  const int status = statusOf(reply);
  const bool isRefusal = status >= 400 && reply.error() > 99;
  if (reply.error() != QNetworkReply::NoError && !isRefusal) return false;
  return status > 0 && hasSaidLength(reply, body);
}

// Where the answer sends the fetch, an invalid address if it cannot be followed; nothing when it is
// no redirect or names no target, so that its body counts.
std::optional<QUrl> redirectTarget(const QNetworkReply& reply) {
  const int status = statusOf(reply);
  const bool isRedirect =
      status == 301 || status == 302 || status == 303 || status == 307 || status == 308;
  const QByteArray location = reply.rawHeader("Location").trimmed();
  if (!isRedirect || location.isEmpty()) return std::nullopt;
  const QUrl target(QString::fromUtf8(location), QUrl::StrictMode);
  return target.isValid() ? reply.url().resolved(target) : QUrl();
}

void fail(Fetch& fetch, std::string reason) {
  fetch.completion(nullptr, std::nullopt, NSError{std::move(reason)});
}

}  // namespace

// Lives on the thread of the fetches. Made, and destroyed after the end of that thread, on the main
// thread: the fetches that it still holds end there.
class QtTransfer::Session : public QObject {
 public:
  explicit Session(const Limits& limits) : limits_(limits) {}

  // From the main thread.
  void add(Fetch fetch) {
    {
      const std::lock_guard lock(inboxMutex_);
      inbox_.push_back(std::move(fetch));
      if (inbox_.size() > 1) return;  // The thread has been woken and has not come yet.
    }
    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
  }

  // The last thing on the thread: what belongs to the network must end where it lived.
  void closeNetwork() {
    for (const auto& [reply, fetch] : underWay_) reply->disconnect(this);
    handOver_.set_value(std::exchange(underWay_, {}));
    network_.reset();
  }

  // On the main thread, when the thread was told to end: what comes to nothing.
  auto takeGivenUp() {
    auto underWay = handOver_.get_future().get();
    const std::lock_guard lock(inboxMutex_);
    return std::pair(std::move(underWay), std::exchange(inbox_, {}));
  }

 protected:
  void customEvent(QEvent*) override {
    std::vector<Fetch> added;
    {
      const std::lock_guard lock(inboxMutex_);
      added.swap(inbox_);
    }
    for (Fetch& fetch : added) {
      const QUrl url(QString::fromStdString(fetch.address), QUrl::StrictMode);
      begin(std::move(fetch), url);
    }
  }

 private:
  void begin(Fetch fetch, const QUrl& url) {
    if (!isFetchable(url)) return fail(fetch, "no http or https address: " + fetch.address);
    QNetworkReply* reply = network().get(plainRequest(url));
    reply->setReadBufferSize(kMostUnread);
    underWay_.emplace(reply, std::move(fetch));
    connect(reply, &QNetworkReply::metaDataChanged, this, [this, reply] { readLength(reply); });
    connect(reply, &QNetworkReply::readyRead, this, [this, reply] { readBody(reply); });
    connect(reply, &QNetworkReply::finished, this, [this, reply] { end(reply); });
  }

  QNetworkAccessManager& network() {
    if (!network_) {
      network_ = std::make_unique<QNetworkAccessManager>();
      network_->setAutoDeleteReplies(true);
      network_->setTransferTimeout(static_cast<int>(limits_.idle.count()));
      // Followed here: Qt loses the body of a redirect that it cannot follow.
      network_->setRedirectPolicy(QNetworkRequest::ManualRedirectPolicy);
    }
    return *network_;
  }

  void readLength(QNetworkReply* reply) {
    const auto length = reply->header(QNetworkRequest::ContentLengthHeader).toULongLong();
    if (length <= limits_.bodyBytes) return;
    // Later: Qt does not expect an end in the middle of telling what it has read.
    const auto refuse = [this, reply] { breakOff(reply, "the body is too long"); };
    QMetaObject::invokeMethod(reply, refuse, Qt::QueuedConnection);
  }

  void readBody(QNetworkReply* reply) {
    const auto at = underWay_.find(reply);
    if (at == underWay_.end()) return;
    std::string& body = at->second.body;
    const QByteArray bytes = reply->readAll();
    if (static_cast<std::size_t>(bytes.size()) > limits_.bodyBytes - body.size()) {
      return breakOff(reply, "the body is too long");
    }
    body.append(bytes.data(), static_cast<std::size_t>(bytes.size()));
  }

  // Ends the fetch, before this returns unless the reply is at its end already.
  void breakOff(QNetworkReply* reply, const char* reason) {
    const auto at = underWay_.find(reply);
    if (at == underWay_.end()) return;
    at->second.refusal = reason;
    reply->abort();
  }

  void end(QNetworkReply* reply) {
    if (reply->isOpen()) readBody(reply);  // Closed if it was broken off.
    auto entry = underWay_.extract(reply);
    if (entry.empty()) return;
    Fetch fetch = std::move(entry.mapped());
    if (!fetch.refusal.empty()) return fail(fetch, fetch.refusal);
    if (!isResponse(*reply, fetch.body)) {
      return fail(fetch, "the answer did not arrive whole: " + reply->errorString().toStdString());
    }
    if (const auto target = redirectTarget(*reply)) return follow(std::move(fetch), *target);
    fetch.completion(std::make_shared<const std::string>(std::move(fetch.body)),
                     NSURLResponse{statusOf(*reply)}, std::nullopt);
  }

  void follow(Fetch fetch, const QUrl& target) {
    if (++fetch.redirects > limits_.redirects) return fail(fetch, "too many redirects");
    fetch.body.clear();
    begin(std::move(fetch), target);
  }

  const Limits limits_;
  std::mutex inboxMutex_;
  std::vector<Fetch> inbox_;
  std::map<QNetworkReply*, Fetch> underWay_;
  std::promise<std::map<QNetworkReply*, Fetch>> handOver_;
  std::unique_ptr<QNetworkAccessManager> network_;  // Owns the replies.
};

QtTransfer::QtTransfer() : QtTransfer(Limits{}) {}

QtTransfer::QtTransfer(const Limits& limits)
    : limits_(limits), thread_(std::make_unique<QThread>()) {
  thread_->setObjectName(QStringLiteral("session"));
}

QtTransfer::~QtTransfer() {
  if (!session_) return;
  thread_->quit();
  const auto givenUp = session_->takeGivenUp();
  if (thread_->wait(QDeadlineTimer(kFarewell))) return;
  // Left to themselves, without a fetch: they end by Qt's own time-out, or with the process.
  std::ignore = session_.release();
  std::ignore = thread_.release();
}

void QtTransfer::start(std::string url, CompletionHandler completion) {
  if (!session_) {
    session_ = std::make_unique<Session>(limits_);
    session_->moveToThread(thread_.get());
    QObject::connect(thread_.get(), &QThread::finished, session_.get(),
                     [session = session_.get()] { session->closeNetwork(); });
    thread_->start();
  }
  session_->add({std::move(url), std::move(completion)});
}

}  // namespace leafund
