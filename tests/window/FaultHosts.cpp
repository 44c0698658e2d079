#include "tests/window/FaultHosts.h"

#include <utility>

#include "tests/support/PictureAnswers.h"
#include "tests/window/FaultBodies.h"

namespace leafund {

std::string FaultHosts::with(PictureServer::Answer answer) {
  return server_.serve("/fault", std::move(answer));
}

std::string FaultHosts::picture() {
  return server_.serve("/new", answers::ok(bodies::jpeg(kNewColour)));
}

std::string FaultHosts::closed() { return PictureServer::closedAddress("/fault"); }

std::string FaultHosts::unvouched() {
  tls_ = std::make_unique<PictureServer>(PictureServer::Speaks::Tls,
                                         identityWith(Certificate::SelfSigned));
  return tls_->serve("/new", answers::ok(bodies::jpeg(kNewColour)));
}

std::string FaultHosts::vouched(Certificate certificate, PictureServer::Speaks speaks) {
  trustOurAuthority();
  tls_ = std::make_unique<PictureServer>(speaks, identityWith(certificate));
  return tls_->serve("/new", answers::ok(bodies::jpeg(kNewColour)));
}

std::string FaultHosts::oldTls() {
  allowAnyTls();
  return vouched(Certificate::Sound, PictureServer::Speaks::Tls10);
}

std::string FaultHosts::plainAsHttps() {
  return "https" + server_.address("/fault").substr(std::string("http").size());
}

std::string FaultHosts::hops(int count) {
  std::string next = picture();
  for (int hop = 1; hop < count; ++hop) {
    next = server_.serve("/hop/" + std::to_string(hop), answers::redirect(next));
  }
  return with(answers::redirect(next));
}

}  // namespace leafund
