// unicode.h -- characters one by one at the edges: out of UTF-8 and into it.
#pragma once

#include <string>
#include <string_view>

// Returns the character that begins at `at`, and moves `at` behind it; the replacement sign for bytes that are none.
char32_t NextUtf8(std::string_view utf8, size_t& at);

void AddUtf8(std::string& utf8, char32_t character);
