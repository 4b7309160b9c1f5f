// Stands in for libFuzzer in an ordinary build: gives a fuzz program every file of the folders named on the
// command line. Fails when there is none; a fault in the program under test ends the run as it would end the
// game.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) {
    int inputs = 0;
    for (int i = 1; i < argc; ++i) {
        for (const auto& entry : std::filesystem::directory_iterator(argv[i])) {
            std::ifstream in(entry.path(), std::ios::binary);
            const std::string bytes{std::istreambuf_iterator<char>(in), {}};
            std::printf("%s\n", entry.path().filename().string().c_str());
            std::fflush(stdout);
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
            ++inputs;
        }
    }
    return inputs > 0 ? 0 : 1;
}
