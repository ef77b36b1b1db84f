#include "runtime/install/copy_decision.h"

#include "helpers/number_text.h"

#include <algorithm>

namespace quillon {

namespace {

CopyDecision Keep(Message why, Text inserted = {})
{
    return {CopyVerdict::Keep, Reason{why, std::move(inserted)}};
}

// Takes the first number off a version.
std::int64_t TakePart(std::string_view& version)
{
    version.remove_prefix(std::min(version.find_first_not_of(" .,"), version.size()));
    const std::int64_t part = LeadingNumber(version);
    version.remove_prefix(std::min(version.find_first_of(".,"), version.size()));
    return part;
}

std::optional<CopyDecision> DecideByVersion(std::string_view options, const ComparedFile& existing,
                                            const ComparedFile& ours)
{
    if (existing.version.empty())
        return std::nullopt;
    if (ours.version.empty())
        return Keep(Message::SkipNoVersion, existing.version);
    const int order = CompareVersions(existing.version, ours.version);
    if (order > 0)
        return Keep(Message::SkipNewerVersion, existing.version);
    if (order == 0 && HasOption(options, CopyLetter::kNotIfEqualVersion))
        return Keep(Message::SkipSameVersion, existing.version);
    return std::nullopt;
}

// Archives and old file systems keep every other second only.
LocalTime EvenSeconds(LocalTime time)
{
    time.second -= time.second % 2;
    return time;
}

} // namespace

int CompareVersions(std::string_view left, std::string_view right)
{
    while (!left.empty() || !right.empty()) {
        const std::int64_t a = TakePart(left);
        const std::int64_t b = TakePart(right);
        if (a != b)
            return a < b ? -1 : 1;
    }
    return 0;
}

CopyDecision DecideCopy(std::string_view options, const ComparedFile& existing,
                        const ComparedFile& ours)
{
    if (HasOption(options, CopyLetter::kNeverReplace))
        return Keep(Message::SkipNeverReplaced);
    if (existing.isReadOnly && !HasOption(options, CopyLetter::kWriteProtected))
        return Keep(Message::SkipReadOnly);
    if (HasOption(options, CopyLetter::kVersionCheck))
        if (const auto decided = DecideByVersion(options, existing, ours))
            return *decided;
    if (HasOption(options, CopyLetter::kDateCheck) &&
        EvenSeconds(existing.modified) > EvenSeconds(ours.modified))
        return Keep(Message::SkipNewerFile,
                    DateText(existing.modified) + " " + TimeTextWithSeconds(existing.modified));
    if (HasOption(options, CopyLetter::kWarnIfExists))
        return {CopyVerdict::Ask, {}};
    return {};
}

} // namespace quillon
