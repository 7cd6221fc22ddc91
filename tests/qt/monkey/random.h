#pragma once

#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <random>

/// The dice of a run: the same seed throws the same on every platform.
class CRandom
{
public:
    explicit CRandom(unsigned seed) : m_engine(seed) {}

    /// A number from 0 to \p count - 1.
    int Below(int count) { return static_cast<int>(m_engine() % static_cast<unsigned>(count)); }

    int Between(int least, int most) { return least + Below(most - least + 1); }

    bool OneIn(int count) { return Below(count) == 0; }

    template <typename Value>
    Value OneOf(std::initializer_list<Value> values)
    {
        return *(values.begin() + Below(static_cast<int>(values.size())));
    }

    template <typename Container>
    auto AnyOf(Container& values) -> decltype(*values.begin())
    {
        return *std::next(values.begin(), Below(static_cast<int>(values.size())));
    }

private:
    std::mt19937 m_engine;
};
