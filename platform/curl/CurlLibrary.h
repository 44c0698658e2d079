#pragma once

#include <curl/curl.h>

#include <string>

#include "platform/foundation/LoadedLibrary.h"

namespace leafund {

// The functions of libcurl that we call, by its own names. Loaded at the first fetch: with its
// thirty dependencies that takes 4.7 ms, which every start would pay.
class CurlLibrary : public LoadedLibrary {
 public:
  explicit CurlLibrary(const std::string& fileName) : LoadedLibrary(fileName) {}

  decltype(&curl_easy_init) easyInit = function("curl_easy_init");
  decltype(&curl_easy_setopt) easySetopt = function("curl_easy_setopt");
  decltype(&curl_easy_getinfo) easyGetinfo = function("curl_easy_getinfo");
  decltype(&curl_easy_header) easyHeader = function("curl_easy_header");
  decltype(&curl_easy_strerror) easyStrerror = function("curl_easy_strerror");
  decltype(&curl_easy_cleanup) easyCleanup = function("curl_easy_cleanup");
  decltype(&curl_slist_append) slistAppend = function("curl_slist_append");
  decltype(&curl_slist_free_all) slistFreeAll = function("curl_slist_free_all");
  decltype(&curl_multi_init) multiInit = function("curl_multi_init");
  decltype(&curl_multi_setopt) multiSetopt = function("curl_multi_setopt");
  decltype(&curl_multi_add_handle) multiAddHandle = function("curl_multi_add_handle");
  decltype(&curl_multi_remove_handle) multiRemoveHandle = function("curl_multi_remove_handle");
  decltype(&curl_multi_perform) multiPerform = function("curl_multi_perform");
  decltype(&curl_multi_info_read) multiInfoRead = function("curl_multi_info_read");
  decltype(&curl_multi_poll) multiPoll = function("curl_multi_poll");
  decltype(&curl_multi_wakeup) multiWakeup = function("curl_multi_wakeup");
  decltype(&curl_multi_cleanup) multiCleanup = function("curl_multi_cleanup");
  decltype(&curl_url) url = function("curl_url");
  decltype(&curl_url_set) urlSet = function("curl_url_set");
  decltype(&curl_url_get) urlGet = function("curl_url_get");
  decltype(&curl_url_cleanup) urlCleanup = function("curl_url_cleanup");
  decltype(&curl_free) free = function("curl_free");
};

}  // namespace leafund
