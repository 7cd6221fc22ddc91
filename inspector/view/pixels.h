#pragma once

#include <cstdint>

/// Arithmetic on pixels that wraps around at 32 bits instead of being undefined.
namespace pixels
{

template <typename... Numbers>
constexpr int Sum(Numbers... numbers)
{
    return static_cast<int>((static_cast<std::uint32_t>(numbers) + ...));
}

constexpr int Difference(int from, int what)
{
    return static_cast<int>(static_cast<std::uint32_t>(from) - static_cast<std::uint32_t>(what));
}

constexpr int Product(int a, int b)
{
    return static_cast<int>(static_cast<std::uint32_t>(a) * static_cast<std::uint32_t>(b));
}

} // namespace pixels
