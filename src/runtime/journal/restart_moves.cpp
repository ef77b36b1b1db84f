#include "runtime/journal/restart_moves.h"

#include "helpers/windows_path.h"
#include "runtime/journal/rollback.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr std::size_t kUnit = 2; // bytes of UTF-16
constexpr std::string_view kEnd{"\0\0", kUnit};

// The text from `at` on with the NUL after it; empty at the end.
std::string_view TextAt(std::string_view bytes, std::size_t at)
{
    std::size_t end = at;
    while (end + kUnit <= bytes.size() && bytes.substr(end, kUnit) != kEnd)
        end += kUnit;
    return bytes.substr(std::min(at, bytes.size()), end + kUnit - at);
}

// Marks stand before the path: '!' where a file may be replaced, and in newer systems '*' with a
// number. Empty for what is no path of a file.
Text PathOf(std::string_view entry)
{
    constexpr std::string_view kRoot = "\\??\\";
    constexpr std::string_view kMarks = "!*0123456789";
    const Text text = TextOf({kRegistryText, std::string(entry)}).value_or("");
    const std::size_t root = text.find(kRoot);
    return root != Text::npos && text.find_first_not_of(kMarks) == root
               ? text.substr(root + kRoot.size())
               : Text();
}

bool IsEntryOf(std::string_view entry, const Text& path)
{
    return EqualIgnoreCase(PathOf(entry), path);
}

// Calls `see(from, to)` for each move. The value is a list of pairs of which the second may be
// empty; so the empty text that ends such a list elsewhere ends this one only in the first place.
template <class See>
void EachMove(std::string_view operations, See see)
{
    for (std::size_t at = 0; at < operations.size();) {
        const std::string_view first = TextAt(operations, at);
        if (first.size() <= kUnit)
            break;
        const std::string_view second = TextAt(operations, at + first.size());
        see(first, second);
        at += first.size() + second.size();
    }
}

std::string WithoutMovesOf(std::string_view operations, const Text& from)
{
    std::string kept;
    EachMove(operations, [&](std::string_view first, std::string_view second) {
        if (!IsEntryOf(first, from))
            kept.append(first).append(second);
    });
    return kept;
}

// A transaction's temporary folder, beside the place.
bool WaitsInOwnFolder(const record::AtRestart& move)
{
    const Text folder = ExtractDirectory(move.from);
    return ExtractFilename(folder).starts_with("~qn") &&
           EqualIgnoreCase(ExtractDirectory(folder), ExtractDirectory(move.to));
}

} // namespace

RegistryKey RestartMovesKey()
{
    return {RegistryRoot::LocalMachine, "SYSTEM\\CurrentControlSet\\Control\\Session Manager"};
}

void ForgetMoveAtRestart(Target& target, const Text& from)
{
    const auto present = target.ReadValue(RestartMovesKey(), kRestartMoves);
    if (!present)
        return;
    const std::string kept = WithoutMovesOf(present->bytes, from);
    if (kept.empty())
        target.RemoveValue(RestartMovesKey(), kRestartMoves);
    else if (kept.size() + kUnit < present->bytes.size())
        target.WriteValue(RestartMovesKey(), kRestartMoves,
                          {present->type, kept + std::string(kEnd)});
}

void ForgetMovesTo(FileSystem& files, Target& target, const std::set<Text>& places)
{
    const auto present = target.ReadValue(RestartMovesKey(), kRestartMoves);
    if (!present)
        return;
    EachMove(present->bytes, [&](std::string_view first, std::string_view second) {
        const record::AtRestart move{PathOf(first), PathOf(second)};
        if (places.count(LowerCase(move.to)) == 0 || !WaitsInOwnFolder(move))
            return;
        RemoveWaitingFile(files, target, move);
    });
    ForgetRemovals(target, places);
}

void ForgetRemovals(Target& target, const std::set<Text>& places)
{
    const auto present = target.ReadValue(RestartMovesKey(), kRestartMoves);
    if (!present)
        return;
    EachMove(present->bytes, [&](std::string_view first, std::string_view second) {
        if (const Text path = PathOf(first);
            second.size() <= kUnit && places.count(LowerCase(path)) > 0)
            ForgetMoveAtRestart(target, path);
    });
}

// The move of the file is removed last, so that all of this can be repeated.
void RemoveWaitingFile(FileSystem& files, Target& target, const record::AtRestart& move)
{
    const Text place = LowerCase(ExtractDirectory(move.to) + "\\");
    const Text folder = ExtractDirectory(move.from);
    const bool isItsOwn = LowerCase(folder).starts_with(place);
    if (files.FileExists(move.from))
        RemoveEvenReadOnly(files, move.from);
    if (isItsOwn && files.DirExists(folder) && files.List(folder).empty())
        files.RemoveFolder(folder);
    if (isItsOwn && !files.DirExists(folder))
        ForgetMoveAtRestart(target, folder);
    ForgetMoveAtRestart(target, move.from);
}

bool IsRemovedAtRestart(const Target& target, const Text& path)
{
    const auto present = target.ReadValue(RestartMovesKey(), kRestartMoves);
    if (!present)
        return false;
    bool isRemoved = false;
    EachMove(present->bytes, [&](std::string_view first, std::string_view second) {
        isRemoved = isRemoved || (second.size() <= kUnit && IsEntryOf(first, path));
    });
    return isRemoved;
}

} // namespace quillon
