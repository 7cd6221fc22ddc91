#include <inspector/view/checkedlist.h>

#include <gtest/gtest.h>

#include <list>
#include <stdexcept>
#include <string>

namespace
{

/// A list whose maximum is small enough to be reached.
class CShortList : public std::list<int>
{
public:
    std::size_t max_size() const { return 2; }
};

template <typename Call>
std::string LengthErrorOf(Call call)
{
    try
    {
        call();
    }
    catch (const std::length_error& error)
    {
        return error.what();
    }
    return "no error";
}

} // namespace

TEST(CheckedList, HasRoomBelowItsMaximum)
{
    const std::list<int> list = {1, 2};
    EXPECT_NO_THROW(CheckRoom(list, 3));
    EXPECT_NO_THROW(CheckRoom(std::list<int>(), 1));
    EXPECT_NO_THROW(CheckRoom(list, list.max_size()));
}

TEST(CheckedList, RaisesTheLengthErrorAtItsMaximum)
{
    const std::list<int> list = {1, 2};
    EXPECT_EQ(LengthErrorOf([&] { CheckRoom(list, 2); }), "list<T> too long");
    EXPECT_EQ(LengthErrorOf([&] { CheckRoom(list, 1); }), "list<T> too long");
    EXPECT_EQ(LengthErrorOf([&] { CheckRoom(std::list<int>(), 0); }), "list<T> too long");
}

TEST(CheckedList, IsLeftAsItIsWhenItIsFull)
{
    CShortList list;
    Append(list, 2);
    Prepend(list, 1);
    EXPECT_EQ(LengthErrorOf([&] { Append(list, 3); }), "list<T> too long");
    EXPECT_EQ(LengthErrorOf([&] { Prepend(list, 0); }), "list<T> too long");
    EXPECT_EQ(static_cast<const std::list<int>&>(list), (std::list<int>{1, 2}));
}

TEST(CheckedList, GivesTheNewMember)
{
    std::list<std::string> list;
    Append(list, "b") += "ack";
    Prepend(list, std::string("f")) += "ront";
    EXPECT_EQ(list, (std::list<std::string>{"front", "back"}));
}
