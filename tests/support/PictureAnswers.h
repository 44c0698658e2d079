#pragma once

#include <chrono>
#include <map>
#include <string>

#include "tests/support/PictureServer.h"

// How a picture server can answer, well or badly.
namespace leafund::answers {

PictureServer::Answer ok(std::string body, std::string type = "image/jpeg");
// `headers` is lines that each end in CR LF.
PictureServer::Answer status(int code, std::string body, std::string headers = "");
PictureServer::Answer redirect(std::string to, int code = 302);
// 200 with a body whose end is that of the connection.
PictureServer::Answer okUntilClosed(std::string body);
// One byte of the body at a time.
PictureServer::Answer drip(std::string body, std::chrono::milliseconds pause);
// Any bytes at all, after which the connection stays open.
PictureServer::Answer bytes(std::string text);

// What goes wrong on the way, so that no body arrives whole.
PictureServer::Answer resetAtOnce();
PictureServer::Answer closeAtOnce();
PictureServer::Answer resetMidBody();
PictureServer::Answer shortContentLength();  // The body ends before its announced length.
PictureServer::Answer cutChunk();            // "whole", and then some of the next chunk.
PictureServer::Answer noHttp();
PictureServer::Answer neverAnswers();
PictureServer::Answer stallMidBody();
PictureServer::Answer endless();

// What is odd, and yet an answer.
PictureServer::Answer redirectWithoutTarget();  // With the body "nowhere".
PictureServer::Answer badGzip();                // Said to be gzip; the body is "no gzip".
PictureServer::Answer empty200();
PictureServer::Answer noContent204();
PictureServer::Answer headerOnly();  // 200 without a length, closed after the header.

// Answers by name: a new one takes its function and a line here, and every test that walks the
// table meets it.
using Table = std::map<std::string, PictureServer::Answer>;
const Table& transportFaults();  // End in an error as soon as they are met.
const Table& silences();         // End in an error after the idle time.
const Table& answersWithoutBody();

}  // namespace leafund::answers
