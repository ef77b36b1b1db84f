#include "platform/posix/text_editor.h"

#include "platform/posix/environment.h"
#include "platform/posix/start_program.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>

namespace quillon {

namespace {

std::string ReadToEnd(FILE* file)
{
    std::string text;
    std::array<char, 4096> piece{};
    for (std::size_t count = 0; (count = fread(piece.data(), 1, piece.size(), file)) > 0;)
        text.append(piece.data(), count);
    return text;
}

/// The name of the desktop entry that opens plain texts.
std::string DefaultTextEditor()
{
    if (FindOnPath("xdg-mime").empty())
        return {};
    const std::unique_ptr<FILE, int (*)(FILE*)> query(
        popen("xdg-mime query default text/plain 2>/dev/null", "r"), pclose);
    if (!query)
        return {};
    const std::string answer = ReadToEnd(query.get());
    return answer.substr(0, answer.find_first_of("\r\n"));
}

/// What a variable holds, or what counts where it is not set or empty.
std::string VariableOr(const char* name, const std::string& otherwise)
{
    const std::string value = EnvironmentVariable(name);
    return value.empty() ? otherwise : value;
}

/// Where programs may be described, the user's own folder first.
std::vector<std::string> DataFolders()
{
    std::vector<std::string> folders{
        VariableOr("XDG_DATA_HOME", EnvironmentVariable("HOME") + "/.local/share")};
    const std::string shared = VariableOr("XDG_DATA_DIRS", "/usr/local/share:/usr/share");
    for (std::size_t start = 0; start <= shared.size();) {
        const std::size_t end = std::min(shared.find(':', start), shared.size());
        folders.push_back(shared.substr(start, end - start));
        start = end + 1;
    }
    return folders;
}

/// The text of a desktop entry; empty where no entry has this name.
std::string ReadDesktopEntry(const std::string& name)
{
    // "kde-kate.desktop" may occur as "kde/kate.desktop".
    std::string inFolder = name;
    if (const std::size_t dash = inFolder.find('-'); dash != std::string::npos)
        inFolder[dash] = '/';
    for (const std::string& folder : DataFolders())
        for (const std::string& candidate : {name, inFolder}) {
            const std::string path = folder + "/applications/" + candidate;
            const std::unique_ptr<FILE, int (*)(FILE*)> file(fopen(path.c_str(), "re"), fclose);
            if (file)
                return ReadToEnd(file.get());
        }
    return {};
}

/// The value of a key in the entry's own group; programs may have further groups after it.
std::string ValueOf(std::string_view entry, std::string_view key)
{
    bool isOwnGroup = false;
    while (!entry.empty()) {
        const std::size_t end = std::min(entry.find('\n'), entry.size());
        const std::string_view line = entry.substr(0, end);
        entry.remove_prefix(std::min(end + 1, entry.size()));
        if (line.starts_with('['))
            isOwnGroup = line.starts_with("[Desktop Entry]");
        const std::size_t sign = line.find('=');
        if (!isOwnGroup || sign == std::string_view::npos)
            continue;
        const std::string_view name = line.substr(0, sign);
        const std::size_t begin = line.find_first_not_of(' ', sign + 1);
        if (name.substr(0, name.find_last_not_of(' ') + 1) == key &&
            begin != std::string_view::npos)
            return std::string(line.substr(begin, line.find_last_not_of(" \r") + 1 - begin));
    }
    return {};
}

bool IsFilePlace(const std::string& argument)
{
    return argument == "%f" || argument == "%F" || argument == "%u" || argument == "%U";
}

/// A place for what only the desktop has: an icon, a caption, the entry itself.
bool IsOtherPlace(const std::string& argument)
{
    return argument.size() == 2 && argument[0] == '%' && argument[1] != '%';
}

} // namespace

std::vector<std::string> CommandOfDesktopEntry(std::string_view entry, const std::string& file)
{
    std::vector<std::string> command;
    bool hasFile = false;
    for (std::string& argument : SplitArguments(ValueOf(entry, "Exec"))) {
        if (IsFilePlace(argument)) {
            command.push_back(file);
            hasFile = true;
        } else if (!IsOtherPlace(argument)) {
            command.push_back(std::move(argument));
        }
    }
    if (command.empty())
        return {};
    if (!hasFile)
        command.push_back(file);
    if (ValueOf(entry, "Terminal") == "true")
        command.insert(command.begin(), {"x-terminal-emulator", "-e"});
    return command;
}

std::vector<std::string> TextEditorCommand(const std::string& file)
{
    const std::string name = DefaultTextEditor();
    if (name.empty() || name.find('/') != std::string::npos)
        return {};
    std::vector<std::string> command = CommandOfDesktopEntry(ReadDesktopEntry(name), file);
    if (command.empty())
        return {};
    if (command.front().find('/') == std::string::npos)
        command.front() = FindOnPath(command.front());
    return command.front().empty() ? std::vector<std::string>() : command;
}

} // namespace quillon
