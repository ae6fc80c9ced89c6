// The one source of chance of a run: the same seed gives the same run.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <random>

class Dice {
public:
    explicit Dice(std::uint64_t seed) : m_seed(seed), m_engine(seed) {}

    /// What is cast from now on depends on the seed and the event alone: that something took longer, or came in another
    /// order, in one event does not make other events of the rest.
    void StartEvent(std::uint64_t event) {
        m_engine.seed(m_seed * 0x9E3779B97F4A7C15ULL + (event + 1) * 0xD1342543DE82EF95ULL);
    }

    std::uint64_t Bits() { return m_engine(); }
    /// 0…count − 1; 0 when there is nothing to choose from.
    int Below(int count) { return count > 0 ? static_cast<int>(m_engine() % static_cast<std::uint64_t>(count)) : 0; }
    /// Both ends included.
    int Between(int first, int last) { return first + Below(last - first + 1); }
    /// True once in so many times.
    bool OneIn(int count) { return Below(count) == 0; }
    template <class T>
    T Of(std::initializer_list<T> choices) {
        return choices.begin()[Below(static_cast<int>(choices.size()))];
    }
    template <class Container>
    const auto& From(const Container& choices) {
        return choices[static_cast<std::size_t>(Below(static_cast<int>(std::size(choices))))];
    }

private:
    std::uint64_t m_seed;
    std::mt19937_64 m_engine;
};
