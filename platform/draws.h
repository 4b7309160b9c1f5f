// The random draws of a desktop.
#pragma once

#include <chrono>
#include <cstdint>
#include <random>

namespace zarpel {

class Draws {
  public:
    // Seeds them from the clock. The last draw goes into the seed too, so that two seeds taken within one
    // clock tick differ.
    void Randomize() {
        const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
        generator_.seed(static_cast<std::uint64_t>(now) ^ generator_());
    }

    // The next one, uniform in [0, 1).
    double Next() { return std::generate_canonical<double, 53>(generator_); }

  private:
    std::mt19937_64 generator_;
};

}  // namespace zarpel
