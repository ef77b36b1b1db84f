#include "design/number_fields.h"

#include <algorithm>
#include <limits>

namespace quillon {

namespace {

constexpr Integer kMinUnderline = 3;
constexpr Integer kMinMistyUnderline = 10;
constexpr Integer kMaxUnderline = 50;
constexpr Integer kBlendedUnderline = 4;

// No record holds a larger number, so none can be entered.
constexpr std::int64_t kMaxStored = std::numeric_limits<Integer>::max();

struct Limits {
    std::int64_t min;
    std::int64_t max = kMaxStored;
    // The limit that the size of the surface sets.
    std::int64_t surface = kMaxStored;
};

Text Within(const Text& entry, const Limits& limits)
{
    const std::int64_t number = std::clamp(LeadingNumber(entry), limits.min, limits.max);
    // Kept: the limit of the surface counts even where it is below the smallest size.
    return NumberText(std::min(number, limits.surface));
}

Text OrDefault(const Text& entry, std::int64_t max, const char* whenBad)
{
    const std::int64_t number = LeadingNumber(entry);
    return number < 1 || number > max ? whenBad : NumberText(number);
}

} // namespace

Text CheckedCharInterSpace(const Text& entry)
{
    return Within(entry, {.min = -10, .max = 100});
}

Text CheckedUnderlineHeight(const Text& entry, UnderlineKind kind)
{
    const std::int64_t height = LeadingNumber(entry);
    if (kind == UnderlineKind::Misty && height < kMinMistyUnderline && !entry.empty())
        return NumberText(kMinMistyUnderline);
    if (entry.empty() || height < kBlendedUnderline)
        return NumberText(kMinUnderline);
    return NumberText(std::min<std::int64_t>(height, kMaxUnderline));
}

Integer UnderlineHeightToEdit(Integer stored)
{
    return stored < kMinUnderline ? kMinUnderline : stored;
}

UnderlineChoice ChoiceOf(UnderlineKind kind)
{
    switch (kind) {
    case UnderlineKind::Simple:
        return {.takesColor1 = true, .minHeight = kMinUnderline, .height = kMinUnderline};
    case UnderlineKind::Misty:
        return {true, true, kMinMistyUnderline, kMinMistyUnderline};
    case UnderlineKind::Blended:
        return {true, true, kMinUnderline, kBlendedUnderline};
    case UnderlineKind::None:
        break;
    }
    return {};
}

Text CheckedTextBoxSize(const Text& entry, Long surface)
{
    return Within(entry, {.min = 50, .surface = surface});
}

Text CheckedRTFboxHeight(const Text& entry, Long surface)
{
    return Within(entry, {.min = 50, .max = 1000, .surface = surface});
}

Text CheckedRTFboxWidth(const Text& entry, Long surface)
{
    return Within(entry, {.min = 100, .surface = surface});
}

Text CheckedPictureSize(const Text& entry)
{
    return Within(entry, {.min = 10, .max = 2000});
}

Text CheckedIntervalSeconds(const Text& entry)
{
    return Within(entry, {.min = 1});
}

Text CheckedLogotypeWMFHeight(const Text& entry)
{
    return OrDefault(entry, 600, "50");
}

Text CheckedLogotypeWMFWidth(const Text& entry)
{
    return OrDefault(entry, 800, "100");
}

} // namespace quillon
