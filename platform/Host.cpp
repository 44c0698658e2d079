#include "platform/Host.h"

#include "platform/foundation/FatalError.h"

namespace leafund {

namespace {
Host* hostInForce = nullptr;
}

Host& currentHost() {
  if (hostInForce == nullptr) fatalError("currentHost", "no host is in force");
  return *hostInForce;
}

void setCurrentHost(Host* host) { hostInForce = host; }

}  // namespace leafund
