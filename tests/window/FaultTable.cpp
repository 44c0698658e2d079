#include "tests/window/FaultTable.h"

#include <chrono>

#include "tests/support/PictureAnswers.h"
#include "tests/support/PictureAnswersProtocol.h"
#include "tests/window/FaultBodies.h"

namespace leafund {

namespace {

using enum Settled;
using std::chrono_literals::operator""s;
using std::chrono_literals::operator""ms;

using At = FaultHosts&;

// The picture that comes with, or in spite of, what is wrong.
std::string picture() { return bodies::jpeg(kNewColour); }
std::string page() { return bodies::errorPage(); }
const std::string secondAnswer = "HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\njunk";

}  // namespace

// A row is not forgiving on purpose: a body that is no picture stops the application there, and
// empties the two other places. Everything else follows from what is a body: an answer that arrived
// whole has one, whatever its status and its type; anything less has none and changes nothing.
const std::vector<Fault>& faults() {
  // clang-format off
  static const std::vector<Fault> table{
    // The host.
    {"ConnectionRefused", [](At) { return FaultHosts::closed(); }, Kept, Kept, Kept},
    {"ResetAtOnce", [](At at) { return at.with(answers::resetAtOnce()); }, Kept, Kept, Kept},
    {"ClosedAtOnce", [](At at) { return at.with(answers::closeAtOnce()); }, Kept, Kept, Kept},
    {"NeverAnswers", [](At at) { return at.with(answers::neverAnswers()); }, Waits, Waits, Waits},
    {"StallsInTheHead", [](At at) { return at.with(answers::stallInHead()); }, Waits, Waits, Waits},
    {"StallsInTheBody", [](At at) { return at.with(answers::stallMidBody()); }, Waits, Waits, Waits},
    {"DripsAByteASecond", [](At at) { return at.with(answers::drip(picture(), 1s)); }, Waits, Waits, Waits},
    {"SpeaksNoHttp", [](At at) { return at.with(answers::noHttp()); }, Kept, Kept, Kept},
    {"PictureWithoutAHead", [](At at) { return at.with(answers::bodyWithoutHead(picture())); }, Kept, Kept, Kept},

    // The way there.
    {"RedirectLoop", [](At at) { return at.with(answers::redirect("/fault")); }, Kept, Kept, Kept},
    {"TwentyRedirects", [](At at) { return at.hops(20); }, Picture, Picture, Picture},
    {"TwentyOneRedirects", [](At at) { return at.hops(21); }, Kept, Kept, Kept},
    {"RedirectToAFile", [](At at) { return at.with(answers::redirect("file:///etc/hostname")); }, Kept, Kept, Kept},
    {"RedirectToData", [](At at) { return at.with(answers::redirect("data:image/gif;base64,R0lGODlh")); }, Kept, Kept, Kept},
    {"RedirectWithoutATarget", [](At at) { return at.with(answers::redirectWithoutTarget()); }, Fatal, Empty, Empty},
    {"RedirectToAClosedHost", [](At at) { return at.with(answers::redirect(FaultHosts::closed())); }, Kept, Kept, Kept},
    {"RedirectToABadCertificate", [](At at) { return at.with(answers::redirect(at.unvouched())); }, Kept, Kept, Kept},
    {"BadCertificate", [](At at) { return at.unvouched(); }, Kept, Kept, Kept},
    {"GoodCertificate", [](At at) { return at.vouched(Certificate::Sound); }, Picture, Picture, Picture},
    {"ExpiredCertificate", [](At at) { return at.vouched(Certificate::Expired); }, Kept, Kept, Kept},
    {"CertificateOfAnotherHost", [](At at) { return at.vouched(Certificate::OfAnotherHost); }, Kept, Kept, Kept},
    {"TlsOf1999", [](At at) { return at.oldTls(); }, Kept, Kept, Kept},
    {"TlsToAHostWithoutTls", [](At at) { return at.plainAsHttps(); }, Waits, Waits, Waits},

    // The head of the answer.
    {"NotFoundPage", [](At at) { return at.with(answers::status(404, page())); }, Fatal, Empty, Empty},
    {"NotFoundWithAPicture", [](At at) { return at.with(answers::status(404, picture())); }, Picture, Picture, Picture},
    {"ServerErrorPage", [](At at) { return at.with(answers::status(500, page())); }, Fatal, Empty, Empty},
    {"UnauthorisedWithAPicture", [](At at) { return at.with(answers::status(401, picture(), "WWW-Authenticate: Basic realm=\"x\"\r\n")); }, Picture, Picture, Picture},
    {"AsksForTheUsersTicketWithAPicture", [](At at) { return at.with(answers::status(401, picture(), "WWW-Authenticate: Negotiate\r\n")); }, Picture, Picture, Picture},
    {"ProxyAsksWithAPicture", [](At at) { return at.with(answers::status(407, picture(), "Proxy-Authenticate: Basic realm=\"x\"\r\n")); }, Picture, Picture, Picture},
    {"UnknownStatus", [](At at) { return at.with(answers::status(999, picture())); }, Picture, Picture, Picture},
    {"StatusOfNought", [](At at) { return at.with(answers::under("HTTP/1.1 000 OK", picture())); }, Kept, Kept, Kept},
    {"NegativeStatus", [](At at) { return at.with(answers::under("HTTP/1.1 -200 OK", picture())); }, Kept, Kept, Kept},
    {"StatusInWords", [](At at) { return at.with(answers::under("HTTP/1.1 two hundred", picture())); }, Kept, Kept, Kept},
    {"StatusBeyondAllNumbers", [](At at) { return at.with(answers::under("HTTP/1.1 99999999999999999999 OK", picture())); }, Kept, Kept, Kept},
    {"OldProtocol", [](At at) { return at.with(answers::under("HTTP/1.0 200 OK", picture())); }, Picture, Picture, Picture},
    {"ProtocolOfTheFuture", [](At at) { return at.with(answers::under("HTTP/7.3 200 OK", picture())); }, Kept, Kept, Kept},
    {"SwitchesProtocols", [](At at) { return at.with(answers::under("HTTP/1.1 101 Switching Protocols", picture(), "Upgrade: x\r\n")); }, Waits, Waits, Waits},
    {"ClosedInTheHead", [](At at) { return at.with(answers::closedInHead()); }, Kept, Kept, Kept},
    {"HeaderOfFourMegabytes", [](At at) { return at.with(answers::longHeader(picture(), 4 << 20)); }, Kept, Kept, Kept},
    {"HundredThousandHeaders", [](At at) { return at.with(answers::manyHeaders(picture(), 100'000)); }, Kept, Kept, Kept},
    {"EndlessHead", [](At at) { return at.with(answers::endlessHead()); }, Kept, Kept, Kept},
    {"TwentyInterimAnswers", [](At at) { return at.with(answers::interim(picture(), 20)); }, Picture, Picture, Picture},
    {"ThousandInterimAnswers", [](At at) { return at.with(answers::interim(picture(), 1'000)); }, Picture, Picture, Picture},
    {"EndlessInterimAnswers", [](At at) { return at.with(answers::endlessInterim()); }, Kept, Kept, Kept},

    // How long the body is.
    {"NoContent", [](At at) { return at.with(answers::noContent204()); }, Kept, Kept, Kept},
    {"EmptyBody", [](At at) { return at.with(answers::empty200()); }, Kept, Kept, Kept},
    {"ClosedAfterTheHead", [](At at) { return at.with(answers::closedAfterHead(1000)); }, Kept, Kept, Kept},
    {"ClosedAfterAHeadWithoutALength", [](At at) { return at.with(answers::headerOnly()); }, Kept, Kept, Kept},
    {"ResetInTheBody", [](At at) { return at.with(answers::resetMidBody()); }, Kept, Kept, Kept},
    {"ClosedInTheBody", [](At at) { return at.with(answers::shortContentLength()); }, Kept, Kept, Kept},
    {"EndsWithTheConnection", [](At at) { return at.with(answers::okUntilClosed(picture())); }, Picture, Picture, Picture},
    {"LongerThanItsLength", [](At at) { return at.with(answers::longerThanItsLength(picture(), "junk")); }, Picture, Picture, Picture},
    {"TwoAnswersForOne", [](At at) { return at.with(answers::longerThanItsLength(picture(), secondAnswer)); }, Picture, Picture, Picture},
    {"BytesBehindLater", [](At at) { return at.with(answers::withBytesLater(answers::ok(picture()), "\n", 1ms)); }, Picture, Picture, Picture},
    {"SecondAnswerLater", [](At at) { return at.with(answers::withBytesLater(answers::ok(picture()), secondAnswer, 1ms)); }, Picture, Picture, Picture},
    {"NoContentWithAPicture", [](At at) { return at.with(answers::under("HTTP/1.1 204 No Content", picture())); }, Kept, Kept, Kept},
    {"TwoLengths", [](At at) { return at.with(answers::withHeaders("Content-Length: 5\r\nContent-Length: 6\r\n", picture())); }, Kept, Kept, Kept},
    {"NegativeLength", [](At at) { return at.with(answers::withHeaders("Content-Length: -5\r\n", picture())); }, Kept, Kept, Kept},
    {"LengthInWords", [](At at) { return at.with(answers::withHeaders("Content-Length: many\r\n", picture())); }, Kept, Kept, Kept},
    {"LengthBeyondAllNumbers", [](At at) { return at.with(answers::withHeaders("Content-Length: 99999999999999999999\r\n", picture())); }, Kept, Kept, Kept},
    {"LengthOfAGigabyte", [](At at) { return at.with(answers::withHeaders("Content-Length: 1073741824\r\n", picture())); }, Kept, Kept, Kept},
    {"EndlessBody", [](At at) { return at.with(answers::endless()); }, Kept, Kept, Kept},

    // In chunks.
    {"Chunks", [](At at) { return at.with(answers::chunked(picture())); }, Picture, Picture, Picture},
    {"ChunkSizeBeyondAllNumbers", [](At at) { return at.with(answers::chunkOfSize("FFFFFFFFFFFFFFFFFF", picture())); }, Kept, Kept, Kept},
    {"ChunkSizeOfTheGreatestNumber", [](At at) { return at.with(answers::chunkOfSize("7FFFFFFFFFFFFFFF", picture())); }, Waits, Waits, Waits},
    {"NegativeChunkSize", [](At at) { return at.with(answers::chunkOfSize("-5", picture())); }, Kept, Kept, Kept},
    {"ChunkSizeInWords", [](At at) { return at.with(answers::chunkOfSize("many", picture())); }, Kept, Kept, Kept},
    {"EndlessChunks", [](At at) { return at.with(answers::endlessChunks()); }, Kept, Kept, Kept},
    {"EndlessChunkSize", [](At at) { return at.with(answers::endlessChunkSize()); }, Kept, Kept, Kept},

    // What the body is.
    {"PictureCalledAPage", [](At at) { return at.with(answers::ok(picture(), "text/html")); }, Picture, Picture, Picture},
    {"PageCalledAPicture", [](At at) { return at.with(answers::ok(page())); }, Fatal, Empty, Empty},
    {"PngCalledAJpeg", [](At at) { return at.with(answers::ok(bodies::png(kNewColour))); }, Picture, Picture, Picture},
    {"Zeros", [](At at) { return at.with(answers::ok(bodies::zeros())); }, Fatal, Empty, Empty},
    {"DrawingOfAFile", [](At at) { return at.with(answers::ok(bodies::drawingOfAFile(), "image/svg+xml")); }, Fatal, Empty, Empty},
    {"BadGzip", [](At at) { return at.with(answers::badGzip()); }, Fatal, Empty, Empty},
    {"GzipBomb", [](At at) { return at.with(answers::gzipBomb(picture(), 16 << 20)); }, Fatal, Empty, Empty},
    {"PackedForTheWay", [](At at) { return at.with(answers::packedForTheWay(picture(), "deflate")); }, Kept, Kept, Kept},
    {"HugeJpeg", [](At at) { return at.with(answers::ok(bodies::hugeJpeg())); }, Blank, Blank, Blank},
    {"HugePng", [](At at) { return at.with(answers::ok(bodies::hugePng())); }, Blank, Blank, Blank},
    {"CutJpeg", [](At at) { return at.with(answers::ok(bodies::cutJpeg(kNewColour))); }, Picture, Picture, Picture},
    {"CutPng", [](At at) { return at.with(answers::ok(bodies::cutPng(kNewColour))); }, Picture, Picture, Picture},
    {"PngWithABadHeader", [](At at) { return at.with(answers::ok(bodies::pngWithBadHeader())); }, Blank, Blank, Blank},
    {"PngWithBadPixels", [](At at) { return at.with(answers::ok(bodies::pngWithBadPixels())); }, Blank, Blank, Blank},
    {"DeepPng", [](At at) { return at.with(answers::ok(bodies::deepPng(kNewColour))); }, Picture, Picture, Picture},
    {"AnimatedGif", [](At at) { return at.with(answers::ok(bodies::animatedGif(kNewColour))); }, Picture, Picture, Picture},
  };
  // clang-format on
  return table;
}

}  // namespace leafund
