#pragma once

#include <string>

namespace leafund {

// What a certificate for 127.0.0.1 is like. All but the one that signs itself are signed by the
// tests' own authority.
enum class Certificate { Sound, Expired, OfAnotherHost, SelfSigned };

// PEM; made by the program `openssl` when it is asked for.
struct Identity {
  std::string key;
  std::string certificate;
};
Identity identityWith(Certificate certificate);

// From now on this process trusts the tests' own authority, and so do the libraries that it loads.
// To be called before the first fetch: libcurl reads once whom to trust.
void trustOurAuthority();

// From now on the system's configuration, as this process reads it, refuses no version of TLS. To
// be called before the first server or fetch with TLS.
void allowAnyTls();

}  // namespace leafund
