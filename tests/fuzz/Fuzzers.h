#pragma once

#include <string_view>

// One function a fuzzer. Each does with its input what the application does with bytes that come
// from outside, asks a reference, and ends the process through promised() when a promise of
// the application is broken. FuzzEntry.cpp gives them inputs without end; CorporaTest.cpp gives
// them the inputs that are kept.
namespace leafund::fuzz {

// A typed amount, read and written in a locale with a decimal comma. The first four bytes are also
// taken for a float.
void amount(std::string_view input);

// A typed address of a picture.
void url(std::string_view input);

// A text that may be an e-mail address.
void email(std::string_view input);

// Two passwords, with the byte FF between them, which no text holds.
void equivalence(std::string_view input);

// The body of a picture. Its last byte, which no decoder reads, also says how it is drawn.
void picture(std::string_view input);

// What a picture host answers; AnswerScript.h says how the bytes are read.
void stream(std::string_view input);

}  // namespace leafund::fuzz
