#include "platform/posix/posix_machine.h"

#include "helpers/windows_path.h"
#include "platform/missing_program.h"
#include "platform/posix/file_status.h"
#include "platform/posix/host_lines.h"
#include "platform/posix/start_program.h"
#include "platform/posix/text_editor.h"
#include "platform/run_error.h"

#include <cerrno>
#include <ctime>
#include <filesystem>
#include <langinfo.h>
#include <locale.h>
#include <sys/random.h>

namespace quillon {

namespace {

constexpr std::size_t kMaxFolderLength = 260;
constexpr std::size_t kMaxOwnerLength = 256;

constexpr const char* kWindows = "C:\\Windows";
constexpr const char* kSystem = "C:\\Windows\\System32";
constexpr const char* kFonts = "C:\\Windows\\Fonts";
constexpr const char* kProgramFiles = "C:\\Program Files";
constexpr const char* kUsers = "C:\\Users";

bool IsWebAddress(const Text& path)
{
    return path.find("://") != Text::npos || path.starts_with("mailto:");
}

/// Where a shortcut of Windows to an address leads, which desktops other than Windows do not know.
Text AddressOfShortcut(const std::string& hostPath)
{
    for (const std::string& line : LinesOfHostFile(hostPath))
        if (LowerCase(line).starts_with("url="))
            return TrimBlanks(std::string_view(line).substr(4));
    return {};
}

void StartOrFail(const std::vector<std::string>& command, const Text& path)
{
    if (command.front().empty() || !StartDetached(command))
        throw RunError(ErrorNumber::kCannotStart, path);
}

/// Makes an empty folder in the drive's own, for those who list it: what lies elsewhere is not in
/// it.
void ShowInDrive(const DriveMap& drives, const Text& folder)
{
    std::error_code failed;
    if (const auto drive = drives.FolderOf(folder[0]))
        std::filesystem::create_directory(*drive + "/" + ExtractFilename(folder), failed);
}

} // namespace

PosixMachine::PosixMachine(const MachineSettings& settings, const DriveMap& drives,
                           PosixFiles& files, RegistryFiles registry)
    : drives_(drives), files_(files), registry_(std::move(registry)),
      tempFolder_(settings.tempFolder), settingsFolder_(settings.settingsFolder),
      user_(settings.user), fullName_(settings.fullName)
{
    for (const char* folder : {kWindows, kSystem, kFonts})
        files.DirCreate(folder);
    if (drives.IsMappedFolder(kOwnDocuments))
        ShowInDrive(drives, kOwnDocuments);
    else if (GetMyDocumentsDir().empty())
        files.DirCreate(kOwnDocuments);
}

Text PosixMachine::IfExists(const Text& path) const
{
    const bool isThere = drives_.IsMappedFolder(path) || files_.DirExists(path);
    return isThere ? FirstCharacters(path, kMaxFolderLength) : Text();
}

Text PosixMachine::UserFolder() const
{
    return JoinPath(kUsers, user_);
}

Text PosixMachine::GetWindowsDir() const
{
    return IfExists(kWindows);
}

Text PosixMachine::GetSystemDir() const
{
    return IfExists(kSystem);
}

Text PosixMachine::GetProgramFilesDir() const
{
    return IfExists(kProgramFiles);
}

Text PosixMachine::GetMyDocumentsDir() const
{
    const Text ofUser = user_.empty() ? Text() : IfExists(JoinPath(UserFolder(), "Documents"));
    return ofUser.empty() ? IfExists(kOwnDocuments) : ofUser;
}

Text PosixMachine::GetSysAppDataDirectory() const
{
    return IfExists(JoinPath(UserFolder(), "AppData\\Roaming"));
}

Text PosixMachine::GetSysLocalAppDataDirectory() const
{
    return IfExists(JoinPath(UserFolder(), "AppData\\Local"));
}

Text PosixMachine::GetSysTemplatesDirectory() const
{
    return IfExists(JoinPath(UserFolder(), "AppData\\Roaming\\Microsoft\\Windows\\Templates"));
}

Text PosixMachine::GetTempDir() const
{
    return RemoveLastBackslash(drives_.ToWindows(tempFolder_).value_or(""));
}

Text PosixMachine::GetSettingsDir() const
{
    return settingsFolder_.empty() ? Text() : drives_.ToWindows(settingsFolder_).value_or("");
}

std::optional<Text> PosixMachine::ReadRegistryValue(RegistryRoot root, const Text& subKey,
                                                    const Text& valueName) const
{
    return registry_.Read(root, subKey, valueName);
}

RegisteredOwner PosixMachine::GetWindowsRegisteredOwner() const
{
    constexpr auto kRoot = RegistryRoot::LocalMachine;
    for (const char* key : {"Software\\Microsoft\\Windows NT\\CurrentVersion",
                            "Software\\Microsoft\\Windows\\CurrentVersion"})
        if (const auto owner = registry_.Read(kRoot, key, "RegisteredOwner"))
            return {
                FirstCharacters(*owner, kMaxOwnerLength),
                FirstCharacters(registry_.Read(kRoot, key, "RegisteredOrganization").value_or(""),
                                kMaxOwnerLength)};
    return {FirstCharacters(fullName_, kMaxOwnerLength), ""};
}

char PosixMachine::DecimalSign() const
{
    // The process itself stays in the "C" locale, on which number texts rely.
    const locale_t ofUser = newlocale(LC_NUMERIC_MASK, "", nullptr);
    if (ofUser == nullptr)
        return '.';
    const char sign = *nl_langinfo_l(RADIXCHAR, ofUser);
    freelocale(ofUser);
    return sign == ',' ? ',' : '.';
}

LocalTime PosixMachine::Now() const
{
    return LocalTimeOf(std::time(nullptr));
}

std::uint32_t PosixMachine::Random(std::uint32_t below)
{
    if (below == 0)
        return 0;
    // Numbers beyond the last whole multiple would favour the small ones, so they are drawn again.
    const std::uint64_t range = std::uint64_t(1) << 32U;
    const std::uint64_t fair = range - range % below;
    std::uint32_t drawn = 0;
    do {
        while (getrandom(&drawn, sizeof drawn, 0) != ssize_t(sizeof drawn) && errno == EINTR) {
        }
    } while (drawn >= fair);
    return drawn % below;
}

std::string PosixMachine::Existing(const Text& path) const
{
    files_.Status(path); // throws where nothing exists
    return *drives_.ToHost(path);
}

void PosixMachine::StartProgram(const Text& program, const Text& arguments)
{
    const std::string hostPath = Existing(program);
    std::vector<std::string> command;
    if (LowerCase(program).ends_with(".exe")) {
        command.push_back(FindOnPath("wine"));
        if (command.front().empty())
            throw MissingProgram("Wine", program);
    }
    command.push_back(hostPath);
    for (std::string& argument : SplitArguments(arguments))
        command.push_back(std::move(argument));
    StartOrFail(command, program);
}

void PosixMachine::OpenDocument(const Text& path)
{
    std::string target = IsWebAddress(path) ? path : Existing(path);
    if (LowerCase(path).ends_with(".url"))
        if (const Text address = AddressOfShortcut(target); IsWebAddress(address))
            target = address;
    StartOrFail({FindOnPath("xdg-open"), target}, path);
}

void PosixMachine::EditTextFile(const Text& path)
{
    const std::vector<std::string> editor = TextEditorCommand(Existing(path));
    if (editor.empty() || !StartDetached(editor))
        OpenDocument(path);
}

} // namespace quillon
