// Stands for the product's solver, by which an install dir is told from any other folder.

#include <cstdio>

int main()
{
    std::puts("NVX 2017 sample solver");
    return 0;
}
