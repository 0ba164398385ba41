#pragma once

#include <string_view>

/// Searches that examine sixteen bytes at a time on processors that can. Each takes the whole text and a
/// position in it, reads only within the text, and returns the text's size if nothing is found.
namespace Scan::Wide {

/// The position of the first line feed at or after from.
std::size_t findLineFeed(std::string_view text, std::size_t from);

/// The number of line feeds in the text.
std::size_t countLineFeeds(std::string_view text);

/// The position after the first "*/" that begins at or after from.
std::size_t findCommentEnd(std::string_view text, std::size_t from);

/// The position of the first byte at or after from, and before limit, that can matter in a function's body: a
/// brace, a quote, a slash or a number sign; limit if there is none. The limit is at most the text's size.
std::size_t findBodyByte(std::string_view text, std::size_t from, std::size_t limit);

/// The position of the first byte at or after from that is followed by "_" and is a "K" or a "T" (so that
/// "ASK_" or "REPORT_" may end there), or that is a backslash.
std::size_t findMacroHint(std::string_view text, std::size_t from);

} // namespace Scan::Wide
