#include "helpers/windows_name.h"

#include "helpers/drive_path.h"
#include "helpers/text.h"

#include <algorithm>
#include <array>

namespace quillon {

namespace {

constexpr std::string_view kSeparators = "\\/";
constexpr std::string_view kForbidden = "<>:\"|?*\\/";
constexpr std::size_t kMaxNameLength = 255;

constexpr std::array<std::string_view, 7> kDevices = {"CON",    "PRN",     "AUX",   "NUL",
                                                      "CONIN$", "CONOUT$", "CLOCK$"};
// The raised digits count as digits here.
constexpr std::array<std::string_view, 12> kPortNumbers = {"1", "2", "3", "4", "5", "6",
                                                           "7", "8", "9", "¹", "²", "³"};

bool IsControl(char byte)
{
    return static_cast<unsigned char>(byte) < ' ';
}

// An extension makes no difference, nor do blanks before it.
bool IsDevice(std::string_view name)
{
    Text stem = UpperCase(name.substr(0, name.find('.')));
    stem.resize(stem.find_last_not_of(' ') + 1);
    if (std::ranges::find(kDevices, std::string_view(stem)) != kDevices.end())
        return true;
    const bool isPort = stem.starts_with("COM") || stem.starts_with("LPT");
    return isPort &&
           std::ranges::find(kPortNumbers, std::string_view(stem).substr(3)) != kPortNumbers.end();
}

bool StartsWithSeparator(std::string_view path)
{
    return !path.empty() && kSeparators.find(path[0]) != std::string_view::npos;
}

PathFault FaultOfPart(std::string_view part)
{
    return part.find(':') != std::string_view::npos ? PathFault::Colon : FaultOfName(part);
}

PathFault FaultOfParts(std::string_view path)
{
    while (!path.empty()) {
        const std::string_view part = path.substr(0, path.find_first_of(kSeparators));
        path.remove_prefix(std::min(part.size() + 1, path.size()));
        const PathFault fault = part.empty() ? PathFault::None : FaultOfPart(part);
        if (fault != PathFault::None)
            return fault;
    }
    return PathFault::None;
}

} // namespace

PathFault FaultOfName(std::string_view name)
{
    if (name.empty())
        return PathFault::Empty;
    if (std::ranges::any_of(name, IsControl))
        return PathFault::Control;
    if (name == "..")
        return PathFault::Climbs;
    if (name.find_first_of(kForbidden) != std::string_view::npos)
        return PathFault::Character;
    if (name.ends_with('.') || name.ends_with(' '))
        return PathFault::End;
    if (IsDevice(name))
        return PathFault::Device;
    return CharacterCount(name) > kMaxNameLength ? PathFault::TooLong : PathFault::None;
}

PathFault FaultOfFolder(std::string_view path)
{
    std::string_view parts = path;
    if (BeginsWithDrive(path)) {
        parts.remove_prefix(2);
        if (!StartsWithSeparator(parts))
            return PathFault::NotAbsolute;
    } else if (StartsWithSeparator(path)) {
        parts.remove_prefix(1);
        const bool isNetwork = StartsWithSeparator(parts) && parts.size() > 1;
        if (!isNetwork)
            return PathFault::NotAbsolute;
    }
    return path.empty() ? PathFault::NotAbsolute : FaultOfParts(parts);
}

Text AsFileName(std::string_view text)
{
    Text name = TrimBlanks(text);
    std::replace_if(
        name.begin(), name.end(),
        [](char c) { return std::string_view("\\/:*?\"<>|\t\r\n").find(c) != Text::npos; }, '-');
    return name;
}

} // namespace quillon
