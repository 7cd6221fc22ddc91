#pragma once

#include <cstddef>
#include <stdexcept>
#include <utility>

/// Refuses to let a list grow beyond its maximum size.
///
/// The lists of the standard library would fail in their own words, or in the allocator.
template <typename List>
void CheckRoom(const List& list, std::size_t maximum)
{
    if (list.size() >= maximum)
        throw std::length_error("list<T> too long");
}

template <typename List, typename Value>
typename List::reference Append(List& list, Value&& value)
{
    CheckRoom(list, list.max_size());
    return list.emplace_back(std::forward<Value>(value));
}

template <typename List, typename Value>
typename List::reference Prepend(List& list, Value&& value)
{
    CheckRoom(list, list.max_size());
    return list.emplace_front(std::forward<Value>(value));
}
