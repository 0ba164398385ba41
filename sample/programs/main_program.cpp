// Stands in for the product's main program, which the shortcut and the product's files start.

#include <cstdio>

int main(int argc, char **argv)
{
    std::puts("NVX 2017 sample");
    for (int i = 1; i < argc; ++i)
        std::printf("opens %s\n", argv[i]);
    return 0;
}
