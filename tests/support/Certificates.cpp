#include "tests/support/Certificates.h"

#include <dlfcn.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace leafund {

namespace {

namespace fs = std::filesystem;

std::string contents(const fs::path& path) {
  std::ostringstream text;
  text << std::ifstream(path).rdbuf();
  return text.str();
}

std::string newKey(const std::string& name) {
  return "-newkey ec -pkeyopt ec_paramgen_curve:prime256v1 -nodes -subj /CN=" + name + " -keyout " +
         name + ".key";
}

// A folder with the authority's key and certificate; it goes with the process.
class Authority {
 public:
  static const Authority& get() {
    static const Authority authority;
    return authority;
  }

  const fs::path& folder() const { return folder_; }

  void run(const std::string& arguments) const {
    const std::string command = "cd '" + folder_.string() + "' && openssl " + arguments;
    if (std::system((command + " >>log 2>&1").c_str()) != 0) {
      throw std::runtime_error(command + "\n" + contents(folder_ / "log"));
    }
  }

 private:
  Authority() : folder_(madeFolder()) {
    run("req -x509 " + newKey("authority") + " -days 2 -out authority.pem");
  }
  ~Authority() { fs::remove_all(folder_); }

  static fs::path madeFolder() {
    std::string name = fs::temp_directory_path() / "authority.XXXXXX";
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no folder");
    return name;
  }

  fs::path folder_;
};

bool isTrusted = false;

}  // namespace

Identity identityWith(Certificate certificate) {
  const Authority& authority = Authority::get();
  const std::string address = certificate == Certificate::OfAnotherHost ? "127.0.0.2" : "127.0.0.1";
  const std::string name = "subjectAltName=IP:" + address;
  if (certificate == Certificate::SelfSigned) {
    authority.run("req -x509 " + newKey("host") + " -addext " + name + " -days 2 -out host.pem");
  } else {
    std::ofstream(authority.folder() / "names") << name << '\n';
    authority.run("req -new " + newKey("host") + " -out host.request");
    // Of the past: as newer versions of the tool say it, or as older ones do.
    const std::string sign =
        "x509 -req -in host.request -CA authority.pem -CAkey authority.key -extfile names "
        "-out host.pem ";
    const std::string past = "-not_before 20200101000000Z -not_after 20200102000000Z";
    authority.run(certificate == Certificate::Expired
                      ? sign + past + " || openssl " + sign + "-days -1"
                      : sign + "-days 2");
  }
  return {contents(authority.folder() / "host.key"), contents(authority.folder() / "host.pem")};
}

void trustOurAuthority() { isTrusted = true; }

void allowAnyTls() {
  const fs::path path = Authority::get().folder() / "lenient.conf";
  std::ofstream(path) << "openssl_conf = all\n[all]\nssl_conf = tls\n[tls]\n"
                         "system_default = any\n[any]\n"
                         "MinProtocol = TLSv1\nCipherString = ALL:@SECLEVEL=0\n";
  setenv("OPENSSL_CONF", path.c_str(), 1);
}

}  // namespace leafund

// Takes the place of OpenSSL's, by which libcurl reads whom the system trusts.
extern "C" int X509_STORE_load_file(void* store, const char* path) {
  using Load = int (*)(void*, const char*);
  void* const crypto = dlopen("libcrypto.so.3", RTLD_NOW | RTLD_NOLOAD);
  const auto load = reinterpret_cast<Load>(dlsym(crypto, "X509_STORE_load_file"));
  if (!leafund::isTrusted) return load(store, path);
  return load(store, (leafund::Authority::get().folder() / "authority.pem").c_str());
}
