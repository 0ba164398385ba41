#pragma once

#include <chrono>

/// The processor time that this process has used, which does not depend on the load of the machine. Its
/// resolution on Windows is 10 to 16 ms.
std::chrono::milliseconds processorTime();

/// How many times as long as usual this program may take: more than once with sanitizers.
#if defined(__SANITIZE_ADDRESS__)
constexpr int sanitizerFactor = 6;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
constexpr int sanitizerFactor = 6;
#else
constexpr int sanitizerFactor = 1;
#endif
#else
constexpr int sanitizerFactor = 1;
#endif
