// random_play [matches] [first seed]: plays that many whole matches at random, one a seed, and prints what
// happened. A fault is printed with its seed; "random_play 1 SEED" plays that match again.
#include <cstdio>
#include <cstdlib>
#include <exception>

#include "tests/play/random_match.h"

using namespace zarpel;

namespace {

// So many matches must have shown everything that can happen.
constexpr int kMatchesThatShowAll = 2000;

}  // namespace

int main(int argc, char** argv) {
    const int matches = argc > 1 ? std::atoi(argv[1]) : 5000;
    const unsigned first = argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : 1;
    Tally tally{};
    for (unsigned seed = first; seed - first < static_cast<unsigned>(matches); ++seed) {
        try {
            PlayRandomMatch(seed, tally);
        } catch (const std::exception& fault) {
            std::printf("seed %u: %s\nplay it again with: random_play 1 %u\n", seed, fault.what(), seed);
            return 1;
        }
    }
    bool all = true;
    for (std::size_t i = 0; i < tally.size(); ++i) {
        std::printf("%s: %lld\n", kNamesOfHappenings[i], static_cast<long long>(tally[i]));
        all = all && tally[i] > 0;
    }
    if (all || matches < kMatchesThatShowAll) return 0;
    std::puts("something that can happen never did");
    return 1;
}
