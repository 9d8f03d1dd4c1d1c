// The interface of random sources, and the program's generator.
#pragma once

#include <array>
#include <cstdint>

namespace warhost {

/// A source of random numbers, passed in wherever dice are rolled, so that a test can choose the values.
class RandomSource {
public:
    RandomSource() = default;
    RandomSource(RandomSource const&) = default;
    RandomSource& operator=(RandomSource const&) = default;
    virtual ~RandomSource() = default;

    /// The next value, uniform in [0, 1).
    virtual double next() = 0;
};

/// xoshiro256++ 1.0 by David Blackman and Sebastiano Vigna ("Scrambled Linear Pseudorandom Number Generators", ACM
/// Transactions on Mathematical Software 47, 2021): 256 bits of state, period 2^256 - 1. The state is filled from one
/// seed by SplitMix64, as its authors advise. A value is the upper 32 bits of an output, divided by 2^32.
class Generator final : public RandomSource {
public:
    explicit Generator(std::uint64_t seed)
    {
        for (auto& word : state_) word = split_mix(seed);
    }

    /// The next value times 2^32.
    std::uint32_t draw() { return static_cast<std::uint32_t>(output() >> 32); }

    double next() override { return draw() * 0x1p-32; }

    bool operator==(Generator const& other) const { return state_ == other.state_; }

private:
    static std::uint64_t rotate_left(std::uint64_t x, int by) { return (x << by) | (x >> (64 - by)); }

    static std::uint64_t split_mix(std::uint64_t& seed)
    {
        seed += 0x9E3779B97F4A7C15;
        std::uint64_t z = seed;
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EB;
        return z ^ (z >> 31);
    }

    std::uint64_t output()
    {
        std::uint64_t const result = rotate_left(state_[0] + state_[3], 23) + state_[0];
        std::uint64_t const shifted = state_[1] << 17;
        state_[2] ^= state_[0];
        state_[3] ^= state_[1];
        state_[1] ^= state_[2];
        state_[0] ^= state_[3];
        state_[2] ^= shifted;
        state_[3] = rotate_left(state_[3], 45);
        return result;
    }

    std::array<std::uint64_t, 4> state_{};
};

} // namespace warhost
