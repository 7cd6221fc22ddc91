#include <inspector/qt/sortentries.h>

#include <support/rowname.h>

#include <gtest/gtest.h>

#include <set>

namespace
{

using CEntries = std::vector<std::pair<std::string, std::string>>;

/// The values of the sorted entries, in order.
std::vector<std::string> SortedValues(const CEntries& entries, int method)
{
    std::vector<std::string> values;
    for (const auto& entry : SortedEntries(entries, method))
        values.push_back(entry.first);
    return values;
}

struct sOrder
{
    const char* m_szName;
    int m_iMethod;
    CEntries m_vEntries;
    std::vector<std::string> m_vExpected;
};

const CEntries g_numbers = {{"a", "beta"}, {"10", "alpha"}, {"9", "Gamma"}};

const sOrder g_orders[] = {
    {"ByValue", 0, g_numbers, {"10", "9", "a"}},
    {"ByLabelWithCapitalsFirst", 1, g_numbers, {"9", "10", "a"}},
    {"AsDefined", 2, g_numbers, {"a", "10", "9"}},
    {"ByNumberWithLettersAsZero", 3, g_numbers, {"a", "9", "10"}},
    {"UnknownMethodAsDefined", 4, g_numbers, {"a", "10", "9"}},
    {"NegativeMethodAsDefined", -1, g_numbers, {"a", "10", "9"}},
    {"APrefixFirst", 0, {{"abc", ""}, {"ab", ""}, {"", ""}}, {"", "ab", "abc"}},
    {"APrefixOfALabelFirst", 1, {{"1", "abc"}, {"2", "ab"}}, {"2", "1"}},
    {"BytesAbove127Last", 0, {{"\xE4", ""}, {"z", ""}, {"\x7F", ""}}, {"z", "\x7F", "\xE4"}},
    {"LabelBytesAbove127Last", 1, {{"1", "\xE4"}, {"2", "z"}}, {"2", "1"}},
    {"NegativeNumbers", 3, {{"3", ""}, {"-20", ""}, {"-3", ""}}, {"-20", "-3", "3"}},
    {"LeadingDigitsOnly", 3, {{"12abc", ""}, {"5 6", ""}, {"x1", ""}}, {"x1", "5 6", "12abc"}},
    {"LeadingBlanks", 3, {{"  7", ""}, {"+6", ""}}, {"+6", "  7"}},
    {"NumbersBeyond32Bits",
     3,
     {{"5000000000", ""}, {"4000000000", ""}, {"1", ""}},
     {"1", "4000000000", "5000000000"}},
    {"NothingToSort", 0, {}, {}},
};

class EntryOrder : public testing::TestWithParam<sOrder>
{
};

} // namespace

TEST_P(EntryOrder, IsAsTheMethodSays)
{
    EXPECT_EQ(SortedValues(GetParam().m_vEntries, GetParam().m_iMethod), GetParam().m_vExpected);
}

INSTANTIATE_TEST_SUITE_P(Methods, EntryOrder, testing::ValuesIn(g_orders), sRowName());

TEST(SortedEntries, KeepsEveryEntryAndItsLabel)
{
    const CEntries entries = {{"7", "x"}, {"7a", "y"}, {"7", "x"}, {"07", "z"}};
    const std::multiset<std::pair<std::string, std::string>> expected(entries.begin(),
                                                                      entries.end());
    for (const int method : {0, 1, 2, 3})
    {
        const CEntries sorted = SortedEntries(entries, method);
        EXPECT_EQ(
            (std::multiset<std::pair<std::string, std::string>>(sorted.begin(), sorted.end())),
            expected)
            << method;
    }
}

TEST(SortedEntries, SortsAHundredThousand)
{
    CEntries entries;
    for (int i = 100000; i > 0; --i)
        entries.emplace_back(std::to_string(i), std::to_string(i));
    const CEntries sorted = SortedEntries(entries, 3);
    ASSERT_EQ(sorted.size(), 100000u);
    for (int i = 0; i < 100000; ++i)
        ASSERT_EQ(sorted[static_cast<std::size_t>(i)].first, std::to_string(i + 1));
}
