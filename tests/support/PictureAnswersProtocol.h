#pragma once

#include <atomic>
#include <chrono>
#include <memory>
#include <string>

#include "tests/support/PictureServer.h"

// How a picture server can break the rules of HTTP, or stretch them. `body` is what the answer
// carries where it carries one; "as a whole" means with its length and on a connection that stays.
namespace leafund::answers {

// The answer, once `open` is true.
PictureServer::Answer whenOpen(std::shared_ptr<const std::atomic<bool>> open,
                               PictureServer::Answer answer);
PictureServer::Answer after(std::chrono::milliseconds pause, PictureServer::Answer answer);

// The body as a whole under a status line, and with further header lines, of the test's own.
PictureServer::Answer under(const std::string& statusLine, const std::string& body,
                            const std::string& headers = "");
// Under a 200 with these header lines and no others, after which the connection is closed.
PictureServer::Answer withHeaders(const std::string& headers, const std::string& body);

PictureServer::Answer bodyWithoutHead(const std::string& body);
PictureServer::Answer closedInHead();
PictureServer::Answer stallInHead();
PictureServer::Answer longHeader(const std::string& body, std::size_t bytes);  // A line of them.
PictureServer::Answer manyHeaders(const std::string& body, int lines);
PictureServer::Answer endlessHead();

// So many times "go on", and then the body as a whole.
PictureServer::Answer interim(const std::string& body, int times);
PictureServer::Answer endlessInterim();

// In three chunks, the last one followed by a trailer.
PictureServer::Answer chunked(const std::string& body);
// One chunk whose size is told so, on a connection that stays.
PictureServer::Answer chunkOfSize(const std::string& size, const std::string& body);
PictureServer::Answer endlessChunks();
PictureServer::Answer endlessChunkSize();

// A length that ends before the body does.
PictureServer::Answer longerThanItsLength(const std::string& body, const std::string& rest);
// And bytes behind the answer, in a packet of their own.
PictureServer::Answer withBytesLater(PictureServer::Answer answer, const std::string& rest,
                                     std::chrono::milliseconds pause);
// A length that is true, and no byte of the body.
PictureServer::Answer closedAfterHead(std::size_t length);

// Said to be gzip, and unpacks to the body and that many bytes of nothing behind it.
PictureServer::Answer gzipBomb(const std::string& body, std::size_t zeros);
// Packed for the way by the coding "deflate", under these names of codings.
PictureServer::Answer packedForTheWay(const std::string& body, const std::string& codings);

}  // namespace leafund::answers
