#pragma once

#include <chrono>

/// The processor time that this process has used. Unlike the time on a clock it does not grow because the
/// machine has other work; on Windows its steps are 10 to 16 ms.
std::chrono::milliseconds processorTime();
