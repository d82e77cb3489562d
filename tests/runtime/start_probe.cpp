// Leaves a file beside itself that tells that it was started.
#include <fstream>
#include <string>

int main(int, char** arguments) {
    std::ofstream(std::string(arguments[0]) + ".started").flush();
}
