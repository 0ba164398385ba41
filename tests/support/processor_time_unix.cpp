#include "support/processor_time.h"

#include <ctime>

std::chrono::milliseconds processorTime()
{
    timespec used = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::seconds(used.tv_sec) +
                                                                 std::chrono::nanoseconds(used.tv_nsec));
}
