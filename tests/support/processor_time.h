#pragma once

#include <chrono>

/// The processor time that this process has used, which does not depend on the load of the machine. Its
/// resolution on Windows is 10 to 16 ms.
std::chrono::milliseconds processorTime();
