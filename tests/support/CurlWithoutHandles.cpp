#include <curl/curl.h>
#include <dlfcn.h>

// In front of the real one, which libcurl itself calls first of all.
extern "C" CURL* curl_easy_init() {
  static bool isFirst = true;
  if (!isFirst) return nullptr;
  isFirst = false;
  return reinterpret_cast<decltype(&curl_easy_init)>(dlsym(RTLD_NEXT, "curl_easy_init"))();
}
