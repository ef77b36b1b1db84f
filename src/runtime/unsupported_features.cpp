#include "runtime/unsupported_features.h"

namespace quillon {

namespace {

struct Part {
    bool isWanted;
    Reason what;
};

} // namespace

std::vector<SkippedPart> UnsupportedFeatures(const SetupInformation& setup,
                                             const LanguageTexts& texts)
{
    const Project& project = setup.project;
    // clang-format off
    const Part parts[] = {
        {!project.Lists.RunScriptBefore.empty(),          {Message::PartScriptBefore}},
        {!project.Lists.RunScriptAfter.empty(),           {Message::PartScriptAfter}},
        {!project.Lists.AutoexecBat.empty(),              {Message::PartStartupLines, "AUTOEXEC.BAT"}},
        {!project.Lists.ConfigSys.empty(),                {Message::PartStartupLines, "CONFIG.SYS"}},
        {project.NET.NET_TestIfInstalled != kOff,         {Message::PartNetTest}},
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
