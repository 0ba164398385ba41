#include "scanner/wide_scan.h"

#include <algorithm>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace Scan::Wide {

namespace {

#ifdef __SSE2__

constexpr std::size_t width = 16;

using Lane = __m128i;

Lane load(const char *bytes)
{
    return _mm_loadu_si128(reinterpret_cast<const __m128i *>(bytes));
}

Lane equals(Lane lane, char byte)
{
    return _mm_cmpeq_epi8(lane, _mm_set1_epi8(byte));
}

Lane either(Lane left, Lane right)
{
    return _mm_or_si128(left, right);
}

Lane both(Lane left, Lane right)
{
    return _mm_and_si128(left, right);
}

// One bit for each byte of a comparison.
unsigned bits(Lane lane)
{
    return static_cast<unsigned>(_mm_movemask_epi8(lane));
}

std::size_t countEqual(Lane lane, char byte)
{
    const Lane ones = _mm_and_si128(equals(lane, byte), _mm_set1_epi8(1));
    const Lane sums = _mm_sad_epu8(ones, _mm_setzero_si128());
    return static_cast<std::size_t>(_mm_cvtsi128_si32(sums) + _mm_extract_epi16(sums, 4));
}

#else

// One byte at a time, with the same expressions.
constexpr std::size_t width = 1;

using Lane = unsigned char;

Lane load(const char *bytes)
{
    return static_cast<Lane>(*bytes);
}

Lane equals(Lane lane, char byte)
{
    return lane == static_cast<Lane>(byte) ? 1 : 0;
}

Lane either(Lane left, Lane right)
{
    return left | right;
}

Lane both(Lane left, Lane right)
{
    return left & right;
}

unsigned bits(Lane lane)
{
    return lane;
}

std::size_t countEqual(Lane lane, char byte)
{
    return equals(lane, byte);
}

#endif

unsigned lowestBit(unsigned mask)
{
    return static_cast<unsigned>(__builtin_ctz(mask));
}

// The first position from `from` to before `limit` for which matchWide sets a bit or matchOne is true. Both
// may read `reach` bytes ahead, within the text.
template<typename MatchWide, typename MatchOne>
std::size_t find(std::string_view text, std::size_t from, std::size_t limit, std::size_t reach,
                 MatchWide matchWide, MatchOne matchOne)
{
    std::size_t at = from;
    while (at < limit && limit - at >= width && text.size() - at >= width + reach) {
        if (const unsigned mask = matchWide(text.data() + at))
            return at + lowestBit(mask);
        at += width;
    }
    for (; at < limit; ++at) {
        if (matchOne(at))
            return at;
    }
    return limit;
}

bool isBodyByte(char byte)
{
    return byte == '{' || byte == '}' || byte == '"' || byte == '#' || byte == '\'' || byte == '/';
}

unsigned bodyBytes(const char *bytes)
{
    const Lane lane = load(bytes);
    const Lane braces = either(equals(lane, '{'), equals(lane, '}'));
    const Lane quotes = either(equals(lane, '"'), equals(lane, '\''));
    const Lane others = either(equals(lane, '#'), equals(lane, '/'));
    return bits(either(either(braces, quotes), others));
}

unsigned macroHints(const char *bytes)
{
    const Lane lane = load(bytes);
    const Lane beforeUnderscore =
        both(either(equals(lane, 'K'), equals(lane, 'T')), equals(load(bytes + 1), '_'));
    return bits(either(beforeUnderscore, equals(lane, '\\')));
}

} // namespace

std::size_t findLineFeed(std::string_view text, std::size_t from)
{
    return find(
        text, from, text.size(), 0, [](const char *bytes) { return bits(equals(load(bytes), '\n')); },
        [text](std::size_t at) { return text[at] == '\n'; });
}

std::size_t countLineFeeds(std::string_view text)
{
    std::size_t count = 0;
    std::size_t at = 0;
    for (; text.size() - at >= width; at += width)
        count += countEqual(load(text.data() + at), '\n');
    const std::string_view rest = text.substr(at);
    return count + static_cast<std::size_t>(std::count(rest.begin(), rest.end(), '\n'));
}

std::size_t findCommentEnd(std::string_view text, std::size_t from)
{
    const std::size_t found = find(
        text, from, text.size(), 1,
        [](const char *bytes) { return bits(both(equals(load(bytes), '*'), equals(load(bytes + 1), '/'))); },
        [text](std::size_t at) { return text[at] == '*' && at + 1 < text.size() && text[at + 1] == '/'; });
    return std::min(found + 2, text.size());
}

std::size_t findBodyByte(std::string_view text, std::size_t from, std::size_t limit)
{
    return find(text, from, limit, 0, bodyBytes, [text](std::size_t at) { return isBodyByte(text[at]); });
}

std::size_t findMacroHint(std::string_view text, std::size_t from)
{
    return find(text, from, text.size(), 1, macroHints, [text](std::size_t at) {
        if (text[at] == '\\')
            return true;
        return (text[at] == 'K' || text[at] == 'T') && at + 1 < text.size() && text[at + 1] == '_';
    });
}

} // namespace Scan::Wide
