#include "support/processor_time.h"

#include <windows.h>

namespace {

// A FILETIME counts steps of 100 ns.
using Steps = std::chrono::duration<long long, std::ratio<1, 10'000'000>>;

Steps stepsOf(const FILETIME &time)
{
    return Steps((static_cast<long long>(time.dwHighDateTime) << 32) | time.dwLowDateTime);
}

} // namespace

std::chrono::milliseconds processorTime()
{
    FILETIME created = {}, ended = {}, inKernel = {}, inProgram = {};
    GetProcessTimes(GetCurrentProcess(), &created, &ended, &inKernel, &inProgram);
    return std::chrono::duration_cast<std::chrono::milliseconds>(stepsOf(inKernel) + stepsOf(inProgram));
}
