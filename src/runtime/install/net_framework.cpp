#include "runtime/install/net_framework.h"

#include "helpers/number_text.h"
#include "runtime/exit_codes.h"

namespace quillon {

namespace {

constexpr RegistryRoot kMachine = RegistryRoot::LocalMachine;
constexpr NetVersion kNone{0, 0};

// Versions 1.0 and 1.1 name their builds here, and so do some that came later.
constexpr const char* kPolicies = "SOFTWARE\\Microsoft\\.NETFramework\\policy";
// Where each version since 1.1 says that it is installed; 4 says so for its parts alone.
constexpr const char* kSetups = "SOFTWARE\\Microsoft\\NET Framework Setup\\NDP";

// "v1.1.4322", "v4"
NetVersion VersionNamed(const Text& key)
{
    if (key.size() < 2 || LowerCase(key)[0] != 'v')
        return kNone;
    const std::size_t dot = key.find('.');
    return {int(LeadingNumber(key.substr(1))),
            dot == Text::npos ? 0 : int(LeadingNumber(key.substr(dot + 1)))};
}

bool SaysInstalled(const Target& target, const Text& key)
{
    const auto installed = target.ReadValue({kMachine, key}, "Install");
    return installed && NumberOf(*installed) == 1U;
}

bool IsSetUp(const Target& target, const Text& key)
{
    return SaysInstalled(target, key) || SaysInstalled(target, key + "\\Client") ||
           SaysInstalled(target, key + "\\Full");
}

bool HasBuild(const Target& target, const Text& key)
{
    return !target.ValueNames({kMachine, key}).empty();
}

void FindNewest(const Target& target, const char* place,
                bool (*isThere)(const Target& target, const Text& key), NetVersion& newest)
{
    for (const Text& name : target.SubKeys({kMachine, place})) {
        const NetVersion version = VersionNamed(name);
        if (version > newest && isThere(target, Text(place) + "\\" + name))
            newest = version;
    }
}

} // namespace

std::optional<NetVersion> InstalledNetFramework(const Target& target)
{
    NetVersion newest = kNone;
    FindNewest(target, kPolicies, HasBuild, newest);
    FindNewest(target, kSetups, IsSetUp, newest);
    return newest == kNone ? std::nullopt : std::optional(newest);
}

void CheckNetFramework(const NetTest& test)
{
    if (test.wanted.NET_TestIfInstalled == kOff)
        return;
    const NetVersion needed{1, test.wanted.NET_ver11 != kOff ? 1 : 0};
    if (InstalledNetFramework(test.target).value_or(kNone) >= needed)
        return;
    const Text name = NumberText(needed.major) + "." + NumberText(needed.minor);
    if (test.wanted.NET_StopIfNoNET != kOff)
        throw SetupFailure(ExitCode::PrerequisiteMissing, test.texts(Message::NeedsNet, name));
    test.log.Line(Message::LogNoNet, name);
    if (test.wanted.NET_WarnIfNoNET != kOff && test.mayAsk &&
        !test.ask.YesNo(test.title, test.texts(Message::NetQuestion, name), Ask::Stops::OnNo))
        throw SetupFailure(ExitCode::Cancelled, {});
}

} // namespace quillon
