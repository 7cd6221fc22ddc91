#include "numbertext.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string_view>
#include <system_error>

namespace
{

std::string_view Trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

// A whole text, a sign of either kind, a comma or a point: what people type for numbers.
bool Parse(const std::string& text, double& number)
{
    std::string digits(Trimmed(text));
    std::replace(digits.begin(), digits.end(), ',', '.');
    if (digits.size() > 1 && digits[0] == '+' && digits[1] != '-')
        digits.erase(0, 1);
    const char* end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, number);
    return error == std::errc() && stop == end && std::isfinite(number);
}

} // namespace

std::string NumberToText(double number)
{
    std::array<char, 64> text{};
    const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() ? std::string(text.data(), end) : std::string();
}

double RoundToDigits(double number, int digits)
{
    const double scale = std::pow(10.0, digits);
    return std::round(number * scale) / scale;
}

sWriteResult ReadNumber(const sImageProperty& property, const std::string& text, double& number)
{
    double typed = 0;
    if (!Parse(text, typed))
        return {sWriteResult::eRefused,
                property.m_sLabel + ": '" + text + "' is not a number; the old value stays."};
    if (property.m_eKind != ePropertyNumber)
        typed = std::round(typed);
    number = std::clamp(typed, property.m_dMin, property.m_dMax);
    if (number == typed)
        return {};
    const bool tooSmall = typed < number;
    return {sWriteResult::eClamped, property.m_sLabel + ": " + NumberToText(typed) +
                                        (tooSmall ? " is below " : " is above ") +
                                        NumberToText(number) + ", which was taken instead."};
}
