// The floating half of number_text.h. It has a file of its own because the conversions of the
// standard library weigh 250 KB, which a program that never calls them need not carry.
#include "helpers/ascii.h"
#include "helpers/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace quillon {

namespace {

bool IsPlaceholder(char character)
{
    return character == '0' || character == '#';
}

// The digits of the value scaled to whole units of its last printed decimal, without sign.
std::string ScaledDigits(double value, std::size_t decimals)
{
    const double scaled = std::round(std::fabs(value) * std::pow(10.0, double(decimals)));
    char buffer[std::numeric_limits<double>::max_exponent10 + 2];
    const auto end =
        std::to_chars(std::begin(buffer), std::end(buffer), scaled, std::chars_format::fixed, 0);
    std::string digits(std::begin(buffer), end.ptr);
    if (digits.size() < decimals)
        digits.insert(0, decimals - digits.size(), '0');
    return digits;
}

// Fills the placeholders from the right; what is left of the digits goes before the first one.
std::string FillWholePart(std::string_view pattern, std::string digits)
{
    const std::size_t first = pattern.find_first_of("0#");
    std::string reversed;
    for (std::size_t i = pattern.size(); i-- > 0;) {
        if (!IsPlaceholder(pattern[i])) {
            reversed += pattern[i];
            continue;
        }
        if (!digits.empty()) {
            reversed += digits.back();
            digits.pop_back();
        } else if (pattern[i] == '0') {
            reversed += '0';
        }
        if (i == first) {
            reversed.append(digits.rbegin(), digits.rend());
            digits.clear();
        }
    }
    std::reverse(reversed.begin(), reversed.end());
    return reversed;
}

} // namespace

std::optional<double> FloatingNumber(std::string_view text, char decimalSign)
{
    std::string number = TrimBlanks(text);
    if (!number.empty() && number.front() == '+')
        number.erase(0, 1);
    const bool plain = std::all_of(number.begin(), number.end(), [&](char character) {
        return IsDigit(character) || character == decimalSign || character == '-';
    });
    if (!plain)
        return std::nullopt;
    std::replace(number.begin(), number.end(), decimalSign, '.');

    double value = 0;
    const auto read = std::from_chars(number.data(), number.data() + number.size(), value,
                                      std::chars_format::fixed);
    if (read.ec != std::errc() || read.ptr != number.data() + number.size())
        return std::nullopt;
    return value;
}

Text FormatNumber(double value, std::string_view pattern, char decimalSign)
{
    const std::size_t decimalPoint = pattern.find('.');
    const std::string_view wholePattern = pattern.substr(0, decimalPoint);
    const std::string_view decimalPattern = decimalPoint == std::string_view::npos
                                                ? std::string_view()
                                                : pattern.substr(decimalPoint + 1);

    std::string digits = ScaledDigits(value, decimalPattern.size());
    const std::string decimals = digits.substr(digits.size() - decimalPattern.size());
    digits.resize(digits.size() - decimals.size());
    digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size()));

    const bool isZero = digits.empty() && decimals.find_first_not_of('0') == Text::npos;
    const bool printsMinus = value < 0 && !isZero;
    Text text = printsMinus ? "-" : "";
    text += FillWholePart(wholePattern, digits);
    if (!decimalPattern.empty())
        text.append(1, decimalSign).append(decimals);
    return text;
}

} // namespace quillon
