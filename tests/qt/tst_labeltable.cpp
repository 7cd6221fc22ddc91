#include <inspector/qt/labeltable.h>

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>
#include <utility>

namespace
{

constexpr unsigned g_uAnywhere = 12345;

} // namespace

TEST(LabelTable, HoldsNothingAtFirst)
{
    const CLabelTable table;
    unsigned place = g_uAnywhere;

    EXPECT_EQ(table.Find(1, "Size", place), nullptr);
    EXPECT_EQ(place, g_uAnywhere);
    EXPECT_EQ(table.LookAt(0, 1, "Size"), nullptr);
    EXPECT_EQ(table.GetSize(), 0U);
}

TEST(LabelTable, TellsNamesAndStylesApart)
{
    CLabelTable table;
    const unsigned size = table.Add(1, "Size", 30);
    const unsigned styled = table.Add(2, "Size", 60);
    const unsigned zero = table.Add(1, std::string("Size\0", 5), 34);

    EXPECT_EQ(*table.LookAt(size, 1, "Size"), 30);
    EXPECT_EQ(*table.LookAt(styled, 2, "Size"), 60);
    EXPECT_EQ(*table.LookAt(zero, 1, std::string("Size\0", 5)), 34);
    EXPECT_EQ(table.LookAt(size, 2, "Size"), nullptr);
    EXPECT_EQ(table.LookAt(size, 1, "Sizes"), nullptr);
    EXPECT_EQ(table.LookAt(size, 1, "Siz"), nullptr);
    EXPECT_EQ(table.LookAt(zero, 1, "Size"), nullptr);
    EXPECT_EQ(table.LookAt(3, 1, "Size"), nullptr);
    EXPECT_EQ(table.LookAt(~0U, 1, "Size"), nullptr);
}

TEST(LabelTable, FindsWhatWasAddedAndNothingElse)
{
    std::mt19937 random(7);
    CLabelTable table;
    std::map<std::pair<unsigned, std::string>, std::pair<unsigned, int>> known;
    for (int i = 0; i < 20000; ++i)
    {
        const unsigned style = random() % 3;
        const std::string name = "Name " + std::to_string(random() % 5000);
        unsigned place = g_uAnywhere;
        const int* found = table.Find(style, name, place);
        const auto entry = known.find({style, name});
        ASSERT_EQ(found != nullptr, entry != known.end()) << name;
        if (found)
        {
            EXPECT_EQ(place, entry->second.first);
            EXPECT_EQ(*found, entry->second.second);
            EXPECT_EQ(table.LookAt(place, style, name), found);
            continue;
        }
        EXPECT_EQ(place, g_uAnywhere);
        place = table.Add(style, name, i);
        known[{style, name}] = {place, i};
    }
    EXPECT_EQ(table.GetSize(), known.size());
    for (const auto& [key, value] : known)
        EXPECT_EQ(*table.LookAt(value.first, key.first, key.second), value.second);
}
