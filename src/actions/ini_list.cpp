#include "actions/ini_list.h"

#include "helpers/ansi_text.h"
#include "helpers/number_text.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"

#include <array>
#include <cstddef>

namespace quillon {

namespace {

/// The header of a file, set off from the lines before it by an empty one.
Text Header(std::string_view list, const Text& name)
{
    return Text(list.empty() ? "" : "\r\n\r\n") + "-- " + name + " --";
}

/// The bytes of the file as far as they can be read; false where that is not to the end.
bool ReadAsFarAsPossible(const FileSystem& files, const Text& path, std::string& bytes)
{
    return RunErrorNumber([&] {
               const auto file = files.OpenInput(path);
               std::array<char, 4096> buffer;
               // What is longer than the list can be is not read to its end.
               while (bytes.size() <= kMaxIniListLength) {
                   const std::size_t read = file->Read(std::as_writable_bytes(std::span(buffer)));
                   if (read == 0)
                       return;
                   bytes.append(buffer.data(), read);
               }
           }) == ErrorNumber::kNone;
}

/// Each line with a line break in front. Files come from anywhere, so a line may end in CR LF, in
/// one of the two, or with the file; where reading failed the last piece is no whole line.
std::string LinesOf(std::string_view bytes, bool isWhole)
{
    std::string lines;
    while (!bytes.empty()) {
        const std::size_t end = bytes.find_first_of("\r\n");
        if (end == std::string_view::npos && !isWhole)
            break;
        lines.append(kLineBreak).append(bytes.substr(0, end));
        if (end == std::string_view::npos)
            break;
        const bool isPair = bytes.substr(end).starts_with(kLineBreak);
        bytes.remove_prefix(end + (isPair ? 2 : 1));
    }
    return lines;
}

} // namespace

bool HasRoomInIniList(std::string_view list, std::string_view added, Ask& ask)
{
    if (CharacterCount(list) + CharacterCount(added) <= kMaxIniListLength)
        return true;
    ask.Critical("Fel", "Listan över INI-filer kan innehålla högst " +
                            NumberText(kMaxIniListLength) + " tecken! Ingenting har lagts till.");
    return false;
}

Text IniFileToAppend(std::string_view list, std::string_view fileName)
{
    Text name = UpperCase(fileName);
    // Kept: the extension may occur anywhere in the name.
    if (name.find(".INI") == Text::npos)
        name += ".INI";
    return Header(list, name);
}

Text IniSectionToAppend(std::string_view list, std::string_view section)
{
    return Text(list.empty() ? "" : kLineBreak).append("[").append(section).append("]\r\n");
}

Text IniValueToAppend(std::string_view list, std::string_view name, std::string_view value)
{
    const bool isLineOpen = !list.empty() && !list.ends_with(kLineBreak);
    return Text(isLineOpen ? kLineBreak : "")
        .append(name)
        .append("=")
        .append(value)
        .append(kLineBreak);
}

Text OpenINIFileIntoList(std::string_view list, const FileSystem& files, Ask& ask)
{
    const auto path = ask.OpenFile(
        {.title = "Öppna INI-fil", .fileName = "*.ini", .filter = "INI-filer (*.ini)|*.ini"});
    if (!path || path->empty())
        return {};
    const Text name = UpperCase(ExtractFilename(*path));
    if (!AnsiText::Holds(name)) {
        ask.Critical("Ogiltiga tecken hittade",
                     "Filen '" + *path +
                         "' kan ej öppnas. Namnet innehåller tecken som inte kan lagras i ett "
                         "projekt. Byt namn på filen och försök igen.");
        return {};
    }
    std::string bytes;
    bool isWhole = ReadAsFarAsPossible(files, *path, bytes);
    // No text file of Windows-1252 has a null in it.
    if (bytes.find('\0') != std::string::npos) {
        bytes.clear();
        isWhole = false;
    }
    const Text added = Header(list, name) + AnsiText::FromBytes(LinesOf(bytes, isWhole));
    if (!HasRoomInIniList(list, added, ask))
        return {};
    if (!isWhole)
        ask.Critical("Fel", "Kan ej öppna INI-fil!");
    return added;
}

} // namespace quillon
