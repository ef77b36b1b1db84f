#include "actions/language_files.h"

#include "helpers/ansi_text.h"
#include "helpers/swedish_order.h"
#include "helpers/windows_name.h"
#include "helpers/windows_path.h"
#include "platform/failure_text.h"
#include "platform/saved_file.h"
#include "platform/whole_file.h"
#include "project/text_limits.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr std::string_view kExtension = ".LNG";

bool IsLanguageFile(const FolderEntry& entry)
{
    return !entry.status.isFolder && UpperCase(entry.name).ends_with(kExtension);
}

/// Does the work; false, and says what failed, where it could not be done.
template <class Work>
bool TryOrReport(Work work, const Text& path, Ask& ask)
{
    std::optional<RunError> failure;
    if (RunErrorNumber(work, failure) == ErrorNumber::kNone)
        return true;
    ask.Critical("Fel", FailureText(*failure, path));
    return false;
}

std::vector<Text> LanguageFilesIn(const FileSystem& files, const Text& folder, Ask& ask)
{
    std::vector<Text> names;
    if (!files.DirExists(folder))
        return names;
    const auto list = [&] {
        for (const FolderEntry& entry : files.List(folder))
            if (IsLanguageFile(entry))
                names.push_back(entry.name);
    };
    if (!TryOrReport(list, folder, ask))
        names.clear();
    return names;
}

} // namespace

std::vector<Text> LanguageFiles(const FileSystem& files, const LanguageFolders& folders, Ask& ask)
{
    std::vector<Text> names = LanguageFilesIn(files, folders.own, ask);
    if (folders.own != folders.ofTool)
        for (const Text& name : LanguageFilesIn(files, folders.ofTool, ask))
            if (std::ranges::none_of(names,
                                     [&](const Text& own) { return EqualIgnoreCase(own, name); }))
                names.push_back(name);
    std::ranges::stable_sort(names, {},
                             [](const Text& name) { return SwedishOrderKey(LowerCase(name)); });
    return names;
}

// Kept: a name that has the extension anywhere gets no second one.
Text LanguageFileName(std::string_view typed)
{
    Text name = UpperCase(TrimBlanks(typed));
    if (!ContainsText(name, kExtension))
        name += kExtension;
    return name;
}

bool CanBeLanguageFile(const Text& name, Ask& ask)
{
    const int maxLength = MaxTextLength(&section::Language::LanguageFile);
    Text reason;
    if (FaultOfName(name) != PathFault::None)
        reason = "kan inte vara ett filnamn i Windows. Tecknen \\ / : * ? \" < > | är inte "
                 "tillåtna, och inte heller namn på enheter som CON.";
    else if (!AnsiText::Holds(name))
        reason = "innehåller tecken som inte får plats i ett projekt. Byt namn på filen!";
    else if (CharacterCount(name) > static_cast<std::size_t>(maxLength))
        reason = "är längre än " + NumberText(maxLength) + " tecken.";
    if (reason.empty())
        return true;
    ask.Inform("Ogiltigt filnamn", "'" + name + "' " + reason);
    return false;
}

std::optional<Text> AddLanguage(const Host& host, const LanguageFolders& folders, Ask& ask)
{
    const auto typed = ask.XInputBox("Ny språkfil", "&Filnamn:");
    if (!typed || TrimBlanks(*typed).empty())
        return {};
    const Text name = LanguageFileName(*typed);
    if (!CanBeLanguageFile(name, ask))
        return {};
    const Text reference = PathIn(host.files, folders, kReferenceLanguage);
    const Text copy = JoinPath(folders.own, name);
    // The reference is there under its own name already.
    const auto make = [&] {
        if (name == kReferenceLanguage)
            return;
        host.files.DirCreate(folders.own);
        const std::string texts = ReadWholeFile(host.files, reference);
        // A translation may be in it.
        if (host.files.FileExists(copy) && ReadWholeFile(host.files, copy) != texts)
            KeepBeside(host.files, copy);
        SaveWholeFile(host.files, copy, texts);
    };
    return TryOrReport(make, copy, ask) ? std::optional(name) : std::nullopt;
}

void EditLanguage(const Host& host, const LanguageFolders& folders, const Text& name, Ask& ask)
{
    const Text path = PathIn(host.files, folders, name);
    TryOrReport([&] { host.machine.EditTextFile(path); }, path, ask);
}

} // namespace quillon
