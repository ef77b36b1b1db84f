#include "filelist/components.h"

namespace quillon {

namespace {

constexpr std::string_view kEntryStart = "Komponent nr ";

} // namespace

std::vector<Text> ComponentListEntries(const Project& project)
{
    std::vector<Text> entries{"Ingen komponent"};
    for (std::size_t i = 0; i < kComponentCount; ++i) {
        const section::FileComponent& component = project.FileComponents[i];
        if (component.Comp != 0)
            entries.push_back(Text(kEntryStart) + NumberText(static_cast<std::int64_t>(i) + 1) +
                              " - '" + component.CompName + "'");
    }
    return entries;
}

Text GetCompDirFromListEntry(std::string_view entry)
{
    const Text number = GetCompNrFromListEntry(entry);
    return number.empty() ? "%DESTDIR" : "%COMPDIR" + number;
}

Text GetCompNrFromListEntry(std::string_view entry)
{
    if (!entry.starts_with(kEntryStart) || entry.size() == kEntryStart.size())
        return {};
    const char digit = entry[kEntryStart.size()];
    return digit >= '1' && digit <= '9' ? Text(1, digit) : Text();
}

Text UsableComponentNumber(const Text& typed, const Project& project, char decimalSign)
{
    const double value = FloatingNumber(typed, decimalSign).value_or(0);
    if (!(value > 0 && value < 10))
        return {};
    const std::int64_t number = RoundToEven(value);
    if (number < 1 || number > static_cast<std::int64_t>(kComponentCount))
        return {};
    const bool isInUse = project.FileComponents[static_cast<std::size_t>(number) - 1].Comp != 0;
    return isInUse ? NumberText(number) : Text();
}

} // namespace quillon
