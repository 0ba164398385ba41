// Stands in for the product's solver. A folder without it is not recognised as an install dir.

#include <cstdio>

int main()
{
    std::puts("NVX 2017 sample solver");
    return 0;
}
