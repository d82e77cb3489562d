// Tells whether another instance of itself runs, and stays until its input ends.
#include <cstdio>

#include "runtime/bare_machine_host.h"

int main() {
    std::puts(BareMachineHost().anotherInstanceRuns() ? "not alone" : "alone");
    std::fflush(stdout);
    while (std::getchar() != EOF) {
    }
}
