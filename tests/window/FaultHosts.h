#pragma once

#include <QColor>
#include <memory>
#include <string>

#include "tests/support/PictureServer.h"

namespace leafund {

// What a test's own pictures are filled with; neither is a colour of the interface.
inline const QColor kNewColour(0, 160, 200);
inline const QColor kOldColour(200, 0, 160);

// The picture hosts of a test: the one that the faults are served by, and those it may lead to.
class FaultHosts {
 public:
  explicit FaultHosts(PictureServer& server) : server_(server) {}

  PictureServer& server() { return server_; }
  // The address of the fault under test, from then on answered so.
  std::string with(PictureServer::Answer answer);

  // A picture of the new colour.
  std::string picture();
  // Where nobody listens.
  static std::string closed();
  // A picture, on a host whose certificate nobody vouches for.
  std::string unvouched();
  // The same, but our authority does, and is trusted from now on.
  std::string vouched(Certificate certificate,
                      PictureServer::Speaks speaks = PictureServer::Speaks::Tls);
  // And by the TLS of 1999, which the system would allow.
  std::string oldTls();
  // The server itself, which does not speak TLS.
  std::string plainAsHttps();
  // So many redirects, and then the picture.
  std::string hops(int count);

 private:
  PictureServer& server_;
  std::unique_ptr<PictureServer> tls_;
};

}  // namespace leafund
