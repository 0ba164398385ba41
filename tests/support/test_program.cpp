#include "support/test_program.h"

#include <cstdio>
#include <cstring>

int runTestClass(const TestClass *classes, int count, int argc, char *argv[])
{
    for (int at = 0; argc > 1 && at < count; ++at) {
        if (std::strcmp(argv[1], classes[at].name) != 0)
            continue;
        argv[1] = argv[0];
        return classes[at].run(argc - 1, argv + 1);
    }
    std::fputs("The first argument is the name of a test class; the others are passed to it:\n", stderr);
    for (int at = 0; at < count; ++at)
        std::fprintf(stderr, "  %s\n", classes[at].name);
    return 2;
}
