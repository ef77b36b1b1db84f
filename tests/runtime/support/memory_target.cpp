#include "runtime/support/memory_target.h"

#include "platform/run_error.h"
#include "platform/whole_file.h"
#include "runtime/journal/restart_moves.h"

#include <gtest/gtest.h>

namespace quillon::test {

namespace {

std::pair<RegistryRoot, Text> IdOf(const RegistryKey& key)
{
    return {key.root, LowerCase(key.subKey)};
}

} // namespace

Text MemoryTarget::Folder(TargetFolder folder) const
{
    switch (folder) {
    case TargetFolder::CommonFiles:
        return "C:\\Program\\Vanliga filer";
    case TargetFolder::Fonts:
        return "C:\\WINDOWS\\Fonts";
    case TargetFolder::Desktop:
        return "C:\\Ulla\\Skrivbord";
    case TargetFolder::StartMenu:
        return "C:\\Ulla\\Start-meny";
    case TargetFolder::Programs:
        return "C:\\Ulla\\Start-meny\\Program";
    case TargetFolder::CommonDesktop:
        return hasCommonFolders ? "C:\\Alla\\Skrivbord" : "";
    case TargetFolder::CommonStartMenu:
        return hasCommonFolders ? "C:\\Alla\\Start-meny" : "";
    case TargetFolder::CommonPrograms:
        return hasCommonFolders ? "C:\\Alla\\Start-meny\\Program" : "";
    }
    return {};
}

bool MemoryTarget::KeyExists(const RegistryKey& key) const
{
    return key.subKey.empty() || keys.count(IdOf(key)) > 0;
}

std::vector<Text> MemoryTarget::SubKeys(const RegistryKey& key) const
{
    std::vector<Text> names;
    const Text inside = LowerCase(key.subKey) + "\\";
    for (const auto& [id, node] : keys) {
        const bool below = id.first == key.root && id.second.size() > inside.size() &&
                           id.second.compare(0, inside.size(), inside) == 0;
        if (below && id.second.find('\\', inside.size()) == Text::npos)
            names.push_back(node.subKey.substr(inside.size()));
    }
    return names;
}

std::vector<Text> MemoryTarget::ValueNames(const RegistryKey& key) const
{
    std::vector<Text> names;
    if (const auto found = keys.find(IdOf(key)); found != keys.end())
        for (const auto& [id, value] : found->second.values)
            names.push_back(value.first);
    return names;
}

std::optional<RegistryData> MemoryTarget::ReadValue(const RegistryKey& key, const Text& name) const
{
    const auto found = keys.find(IdOf(key));
    if (found == keys.end())
        return std::nullopt;
    const auto value = found->second.values.find(LowerCase(name));
    return value == found->second.values.end() ? std::nullopt : std::optional(value->second.second);
}

void MemoryTarget::MakeKey(const RegistryKey& key)
{
    beforeChange();
    for (std::size_t at = 0; at != Text::npos;) {
        at = key.subKey.find('\\', at + 1);
        const Text subKey = key.subKey.substr(0, at);
        keys.try_emplace({key.root, LowerCase(subKey)}, KeyNode{subKey, {}});
    }
}

void MemoryTarget::WriteValue(const RegistryKey& key, const Text& name, const RegistryData& data)
{
    beforeChange();
    const auto found = keys.find(IdOf(key));
    if (found == keys.end())
        throw RunError(ErrorNumber::kPathNotFound, KeyText(key));
    auto& value = found->second.values[LowerCase(name)];
    value = {value.first.empty() ? name : value.first, data};
}

void MemoryTarget::RemoveValue(const RegistryKey& key, const Text& name)
{
    beforeChange();
    if (!ReadValue(key, name))
        throw RunError(ErrorNumber::kFileNotFound, KeyText(key));
    keys.at(IdOf(key)).values.erase(LowerCase(name));
}

void MemoryTarget::RemoveKey(const RegistryKey& key)
{
    beforeChange();
    if (!KeyExists(key) || !SubKeys(key).empty())
        throw RunError(ErrorNumber::kPathFileAccess, KeyText(key));
    keys.erase(IdOf(key));
}

void MemoryTarget::MakeShortcut(const Text& path, const Shortcut& shortcut)
{
    beforeChange();
    WriteWholeFile(*files_, path,
                   shortcut.program + "|" + shortcut.arguments + "|" + shortcut.workFolder + "|" +
                       shortcut.iconFile + "|" + shortcut.description);
}

// As MakeShortcut writes it.
std::optional<Shortcut> MemoryTarget::ReadShortcut(const Text& path) const
{
    const Text bytes = ReadWholeFile(*files_, path);
    const std::size_t program = bytes.find('|');
    if (program == Text::npos)
        return std::nullopt;
    Shortcut shortcut;
    shortcut.program = bytes.substr(0, program);
    shortcut.arguments = bytes.substr(program + 1, bytes.find('|', program + 1) - program - 1);
    return shortcut;
}

Registration MemoryTarget::RegisterServer(const Text& path, bool on)
{
    beforeChange();
    const auto found = registrationAnswers.find(path);
    const Registration answer =
        found == registrationAnswers.end() ? Registration::Done : found->second;
    if (answer == Registration::Done && on)
        registered.insert(path);
    else if (answer == Registration::Done)
        registered.erase(path);
    return answer;
}

void MemoryTarget::AnnounceFont(const Text& path, bool on)
{
    beforeChange();
    if (on)
        fonts.insert(path);
    else
        fonts.erase(path);
}

void MemoryTarget::MoveAtRestart(const Text& from, const Text& to)
{
    beforeChange();
    movesAtRestart.emplace_back(from, to);
    if (listsMovesAtRestart)
        ListMoveAtRestart(from, to);
}

std::string MemoryTarget::RestartEntry(const Text& from, const Text& to) const
{
    const Text root = restartMark + "\\??\\";
    return TextData(root + from).bytes +
           (to.empty() ? std::string(2, '\0') : TextData("!" + root + to).bytes);
}

// Pairs of texts, of which the second may be empty, and an empty text after the last pair.
void MemoryTarget::ListMoveAtRestart(const Text& from, const Text& to)
{
    constexpr std::uint32_t kListOfTexts = 7;
    const std::string empty(2, '\0');
    const auto present = ReadValue(RestartMovesKey(), kRestartMoves);
    std::string moves = present ? present->bytes : empty;
    moves.resize(moves.size() - empty.size());
    moves += RestartEntry(from, to);
    auto& value = keys.at(IdOf(RestartMovesKey())).values[LowerCase(kRestartMoves)];
    value = {kRestartMoves, {kListOfTexts, moves + empty}};
}

bool MemoryTarget::IsSameFile(const Text& path, const Text& other) const
{
    const auto plain = [&](const Text& name) {
        return !otherNameOfMain.empty() && LowerCase(name).starts_with(LowerCase(otherNameOfMain))
                   ? main + name.substr(otherNameOfMain.size())
                   : name;
    };
    return files_->FileExists(path) && files_->FileExists(other) &&
           EqualIgnoreCase(plain(path), plain(other));
}

std::shared_ptr<void> MemoryTarget::HoldShutdown(const Text& reason)
{
    shutdownReasons.push_back(reason);
    ++shutdownHolds;
    return {nullptr, [this](void*) { --shutdownHolds; }};
}

int MemoryTarget::RunProgram(const ProgramRun& run)
{
    programsRun.push_back(run.program + (run.arguments.empty() ? "" : " " + run.arguments) +
                          (run.isHidden ? " (hidden)" : ""));
    onProgram(run);
    const auto code = programCodes.find(run.program);
    return code == programCodes.end() ? 0 : code->second;
}

void MemoryTarget::CloseToOthers(const Text& path)
{
    beforeChange();
    closedToOthers.insert(path);
}

void MemoryTarget::CopyRights(const Text& from, const Text& to)
{
    beforeChange();
    copyRights(from, to);
}

bool MemoryTarget::HaveSameOwner(const Text& path, const Text& own) const
{
    return ofOthers.count(path) == ofOthers.count(own);
}

Text MemoryTarget::TextAt(const RegistryKey& key, const Text& name) const
{
    const auto data = ReadValue(key, name);
    return data ? TextOf(*data).value_or("<no text>") : "<none>";
}

} // namespace quillon::test
