#include "runtime/unsupported_features.h"

#include <algorithm>

namespace quillon {

namespace {

struct Part {
    bool isWanted;
    Reason what;
};

// The system's own installation of data access, which an import of a Visual Basic project adds. It
// arrives as any other file; nothing starts it.
constexpr const char* kDataAccess = "MDAC_TYP.ZIP";

bool HasRow(const std::vector<InstallRow>& rows, std::string_view name)
{
    return std::ranges::any_of(
        rows, [&](const InstallRow& row) { return EqualIgnoreCase(row.name, name); });
}

} // namespace

std::vector<SkippedPart> UnsupportedFeatures(const SetupInformation& setup,
                                             const std::vector<InstallRow>& rows,
                                             const LanguageTexts& texts)
{
    const Project& project = setup.project;
    // clang-format off
    const Part parts[] = {
        {!project.Lists.AutoexecBat.empty(),              {Message::PartStartupLines, "AUTOEXEC.BAT"}},
        {!project.Lists.ConfigSys.empty(),                {Message::PartStartupLines, "CONFIG.SYS"}},
        {project.NET.NET_TestIfInstalled != kOff,         {Message::PartNetTest}},
        {!project.DesSound.BackSoundFilename.empty(),     {Message::PartSound}},
        {HasRow(rows, kDataAccess),                       {Message::PartDataAccess, kDataAccess}},
        {project.InstallOptions.RestartWindows != kOff,   {Message::PartRestart}},
    };
    // clang-format on
    std::vector<SkippedPart> skipped;
    for (const Part& part : parts)
        if (part.isWanted)
            skipped.push_back({texts(part.what), {Message::SkipNotYet}});
    return skipped;
}

} // namespace quillon
