#pragma once

#include <cstdint>
#include <type_traits>

/// Whether \p Class itself declares a member, given as the pointer to it that a derived class or
/// the class itself names: `IsDeclaredIn<QWidget>(&CQTStaticWidget::keyPressEvent)`.
template <typename Class, typename Member, typename Owner>
constexpr bool IsDeclaredIn(Member Owner::*)
{
    return std::is_same_v<Class, Owner>;
}

/// Where a base begins in an object, in bytes: what fixes the order of the bases.
template <typename Base, typename Class>
std::intptr_t OffsetOf(Class& object)
{
    return reinterpret_cast<char*>(static_cast<Base*>(&object)) - reinterpret_cast<char*>(&object);
}
