#pragma once

#include <cstddef>

// The whole of what the program asks of the page, which page.js and its modules answer. Texts are
// UTF-8 in the program's memory and hold only during the call. Views and scenes are known by their
// numbers.
#define LEAFUND_FROM_PAGE(name) __attribute__((import_module("leafund"), import_name(#name)))
// What the page asks of the program. Never within a call of the program's to the page, unless an
// event of the browser comes in between: then it waits for the end of the turn.
#define LEAFUND_TO_PAGE(name) extern "C" __attribute__((export_name(#name)))

namespace leafund::page {

// A screen's element comes, inside that of the screen `place`, or goes. JSON: WebScene.cpp.
LEAFUND_FROM_PAGE(scene) void scene(int id, int place, const char* json, std::size_t size);
LEAFUND_FROM_PAGE(endScene) void endScene(int id);
// Which screen is to be seen, and its bar. JSON: WebHost.cpp.
LEAFUND_FROM_PAGE(show) void show(const char* json, std::size_t size);

// A table's row comes, with its parts by their names.
LEAFUND_FROM_PAGE(cell) void cell(int table, int id, const char* json, std::size_t size);
// A view looks so from now on. JSON: ViewJson.cpp.
LEAFUND_FROM_PAGE(look) void look(int id, const char* json, std::size_t size);
// A picture view shows that body, of a PictureHeader's format; a size of 0 empties it.
LEAFUND_FROM_PAGE(picture) void picture(int id, const char* body, std::size_t size, int format);
LEAFUND_FROM_PAGE(endView) void endView(int id);

// Fetches, and ends it later by body() or failed(), never inside this call.
LEAFUND_FROM_PAGE(fetch)
void fetch(int id, const char* address, std::size_t size, int idleSeconds, double mostBytes);
// Calls drain() later.
LEAFUND_FROM_PAGE(wake) void wake();
// Pixels a point.
LEAFUND_FROM_PAGE(screenScale) double screenScale();

// Unicode.h; -1 for a pattern that does not compile, or that others might read otherwise.
LEAFUND_FROM_PAGE(equivalent)
int equivalent(const char* a, std::size_t aSize, const char* b, std::size_t bSize);
LEAFUND_FROM_PAGE(matches)
int matches(const char* pattern, std::size_t patternSize, const char* text, std::size_t size);

}  // namespace leafund::page
