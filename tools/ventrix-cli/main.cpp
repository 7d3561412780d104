#include <cstdio>

// Placeholder until the virtual meter and the decoder land.
int main()
{
    std::fprintf(stderr, "usage: ventrix-cli meter|decode\n");
    return 2;
}
