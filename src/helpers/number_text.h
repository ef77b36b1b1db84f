// Numbers to text and back, the one place for both. Nothing here looks at the process's locale: a
// decimal sign is always handed in.
#pragma once

#include "helpers/text.h"

#include <charconv>
#include <cstdint>
#include <optional>

namespace quillon {

// The number types that users' files are made of. A Flag is kOff or kOn in memory; test it against
// kOff, since some flags come back from a file as 1.
using Flag = std::int16_t;
using Integer = std::int16_t;
using Long = std::int32_t;

inline constexpr Flag kOff = 0;
inline constexpr Flag kOn = -1;

/// Plain decimal, a minus sign if negative.
Text NumberText(std::int64_t number);
Text ConvertLongToString(Long number);

/// Optional minus sign, then digits; reading stops at the first other character, and a text that
/// starts with no digit gives 0. Values beyond 64 bits stay at the type's end.
std::int64_t LeadingNumber(std::string_view text);

/// The text as a number of the type; nothing where it is anything but an optional minus sign and
/// digits, or a number beyond the type's.
template <class Number>
std::optional<Number> WholeNumber(std::string_view text)
{
    Number number = 0;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, number);
    return read.ec == std::errc() && read.ptr == end ? std::optional(number) : std::nullopt;
}

/// True of one digit or more and nothing else.
constexpr bool IsDigits(std::string_view text)
{
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

/// The whole text as a floating number with `decimalSign`; blanks round it and a leading sign are
/// allowed. Nothing when the text is no such number.
std::optional<double> FloatingNumber(std::string_view text, char decimalSign);

/// Prints by a pattern of '0' (digit always), '#' (digit where there is one), one '.' (the decimal
/// sign) and blanks, which are literals and always printed. Digits beyond the placeholders stand
/// before the first one; the last decimal is rounded half away from zero.
/// `FormatNumber(1234567, "## ##0.0", ',')` is "1234 567,0".
Text FormatNumber(double value, std::string_view pattern, char decimalSign);

/// To the nearest whole number, half-way cases to the even neighbour.
std::int64_t RoundToEven(double value);

} // namespace quillon
