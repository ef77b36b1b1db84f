#include "importers/dotnet_need.h"

#include <nlohmann/json.hpp>

#include <array>

namespace quillon {

namespace {

using Json = nlohmann::json;

constexpr const char* kFramework = ".NET Framework";

struct ClrVersion {
    std::string_view clr;
    const char* framework;
};
// The CLR of a framework that is older than the note of the target.
constexpr std::array<ClrVersion, 4> kClrVersions{
    {{"v1.0.3705", "1.0"}, {"v1.1.4322", "1.1"}, {"v2.0.50727", "2.0"}, {"v4.0.30319", "4.0"}}};

Text TextOf(const Json& object, const char* key)
{
    const auto found = object.is_object() ? object.find(key) : object.end();
    return found != object.end() && found->is_string() ? found->get<Text>() : Text();
}

// Of several frameworks the one beside Microsoft.NETCore.App, which the others include.
const Json* FrameworkOf(const Json& options)
{
    if (const auto one = options.find("framework"); one != options.end() && one->is_object())
        return &*one;
    const auto several = options.find("frameworks");
    if (several == options.end() || !several->is_array() || several->empty())
        return nullptr;
    for (const Json& framework : *several)
        if (TextOf(framework, "name") != "Microsoft.NETCore.App")
            return &framework;
    return &several->front();
}

} // namespace

DotNetNeed NeedOfRuntimeConfig(std::string_view json)
{
    const Json config = Json::parse(json, nullptr, false, true);
    const auto options = config.is_object() ? config.find("runtimeOptions") : config.end();
    if (config.is_discarded() || options == config.end() || !options->is_object())
        return {.kind = DotNetNeed::Kind::Core,
                .name = ".NET",
                .damage = "filen .runtimeconfig.json är ingen sådan"};
    if (options->contains("includedFrameworks"))
        return {.kind = DotNetNeed::Kind::Contained};
    const Json* framework = FrameworkOf(*options);
    if (!framework)
        return {.kind = DotNetNeed::Kind::Contained};
    return {.kind = DotNetNeed::Kind::Core,
            .name = TextOf(*framework, "name"),
            .version = TextOf(*framework, "version")};
}

DotNetNeed NeedOfProgram(const ProgramInfo& info)
{
    constexpr std::string_view kFrameworkNote = ".NETFramework,Version=v";
    constexpr std::string_view kCoreNote = ".NETCoreApp,Version=v";
    if (!info.isManaged)
        return {};
    const std::string_view target = info.targetFramework;
    if (target.starts_with(kFrameworkNote))
        return {.kind = DotNetNeed::Kind::Framework,
                .name = kFramework,
                .version = Text(target.substr(kFrameworkNote.size()))};
    if (target.starts_with(kCoreNote))
        return {.kind = DotNetNeed::Kind::Core,
                .name = ".NET",
                .version = Text(target.substr(kCoreNote.size()))};
    for (const ClrVersion& known : kClrVersions)
        if (info.clrVersion == known.clr)
            return {.kind = DotNetNeed::Kind::Framework,
                    .name = kFramework,
                    .version = known.framework};
    return {.kind = DotNetNeed::Kind::Framework, .name = kFramework};
}

Text DotNetNeedText(const DotNetNeed& need)
{
    if (need.kind == DotNetNeed::Kind::None)
        return {};
    if (need.kind == DotNetNeed::Kind::Contained)
        return "Programmet har sin .NET-version med sig.";
    Text text = "Programmet behöver " + need.name;
    if (!need.version.empty())
        text += " " + need.version;
    return text + (need.damage.empty() ? "." : " (" + need.damage + ").");
}

} // namespace quillon
