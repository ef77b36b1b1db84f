// platform_check FOLDER LOG: tries the Windows side of src/platform on an empty folder. What fails
// is written to the log, a line each; the exit code is the number of failures.
#include "helpers/sha256.h"
#include "helpers/sha256_instructions.h"
#include "helpers/windows_path.h"
#include "platform/crypto.h"
#include "platform/run_error.h"
#include "platform/saved_file.h"
#include "platform/second_thread.h"
#include "platform/whole_file.h"
#include "platform/win32/copied_rights.h"
#include "platform/win32/held_file.h"
#include "platform/win32/locked_folder.h"
#include "platform/win32/registry_key.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win_files.h"
#include "platform/win32/win_machine.h"

#include <windows.h>

#include <aclapi.h>
#include <shellapi.h>

using namespace quillon;

namespace {

class Checks {
public:
    void Expect(bool holds, const Text& what)
    {
        ++count_;
        if (!holds)
            failures_.push_back(what);
    }

    template <class Work>
    void ExpectFailure(int number, Work work, const Text& what)
    {
        const int got = RunErrorNumber(work);
        Expect(got == number, what + ": " + std::to_string(got));
    }

    Text Log() const
    {
        Text log = std::to_string(count_) + " checks\n";
        for (const Text& failure : failures_)
            log += failure + "\n";
        return log;
    }
    int Failures() const { return static_cast<int>(failures_.size()); }

private:
    int count_ = 0;
    std::vector<Text> failures_;
};

Text Hex(std::span<const std::byte> bytes)
{
    constexpr char kDigits[] = "0123456789abcdef";
    Text hex;
    for (const std::byte byte : bytes) {
        hex += kDigits[std::to_integer<unsigned>(byte) >> 4U];
        hex += kDigits[std::to_integer<unsigned>(byte) & 15U];
    }
    return hex;
}

std::span<const std::byte> BytesOf(std::string_view text)
{
    return std::as_bytes(std::span(text.data(), text.size()));
}

Text Derived(std::string_view password, std::string_view salt, unsigned rounds, std::size_t length)
{
    std::vector<std::byte> key(length);
    DeriveKey(password, BytesOf(salt), rounds, key);
    return Hex(key);
}

Text Code(std::string_view key, std::string_view text)
{
    HmacSha1 code(BytesOf(key));
    code.Add(BytesOf(text.substr(0, 2)));
    code.Add(BytesOf(text.substr(2)));
    return Hex(code.Finish());
}

// The vectors of RFC 6070, RFC 2202 and FIPS 197.
void CheckCrypto(Checks& checks)
{
    checks.Expect(Derived("password", "salt", 4096, 20) ==
                      "4b007901b765489abead49d926f721d065a429c1",
                  "a derived key");
    checks.Expect(Derived("passwordPASSWORDpassword", "saltSALTsaltSALTsaltSALTsaltSALTsalt", 4096,
                          25) == "3d2eec4fe41c849b80c8d83662c0e44a8b291a964cf2f07038",
                  "a derived key of two blocks");
    checks.Expect(Code("Jefe", "what do ya want for nothing?") ==
                      "effcdf6ae5eb2fa2d27416d5f184df9c259a7c79",
                  "a code");
    checks.Expect(
        Code(Text(80, '\xaa'), "Test Using Larger Than Block-Size Key - Hash Key First") ==
            "aa4ae5e15272d00e95705637ce8a3b55ed402112",
        "a code by a long key");

    std::array<std::byte, kAes256KeySize> key{};
    for (std::size_t i = 0; i < key.size(); ++i)
        key[i] = std::byte(i);
    std::vector<std::byte> blocks;
    for (unsigned i = 0; i < 2 * kAesBlockSize; ++i)
        blocks.push_back(std::byte(i % kAesBlockSize * 0x11));
    std::vector<std::byte> encrypted(blocks.size());
    AesEncryptor encryptor(key);
    encryptor.EncryptBlocks(blocks, encrypted);
    const Text one = "8ea2b7ca516745bfeafc49904b496089";
    checks.Expect(Hex(encrypted) == one + one, "two blocks");
    encryptor.EncryptBlocks(blocks, blocks);
    checks.Expect(Hex(blocks) == one + one, "two blocks in place");
}

// The second example of FIPS 180-2. What computes it is the program's own choice, so the
// processor's instructions are held against plain code as well.
void CheckDigests(Checks& checks)
{
    Sha256 hash;
    hash.Add(BytesOf("abc"));
    checks.Expect(Hex(hash.Finish()) ==
                      "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad",
                  "a digest");
    std::vector<std::byte> bytes(37 * kSha256BlockSize);
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<std::byte>(i * i % 251);
    Sha256State plain{1, 2, 3, 4, 5, 6, 7, 8};
    Sha256State fast = plain;
    MixSha256Portably(plain, bytes);
    if (HasSha256Instructions())
        MixSha256ByInstructions(fast, bytes);
    else
        MixSha256OfProgram(fast, bytes);
    checks.Expect(plain == fast, "a digest by the processor's instructions");
}

void CheckSecondThread(Checks& checks)
{
    SecondThread thread;
    DWORD worker = 0;
    thread.Start([&] { worker = GetCurrentThreadId(); });
    thread.Wait();
    checks.Expect(worker != 0 && worker != GetCurrentThreadId(), "a thread of its own");
    unsigned sum = 0;
    for (unsigned i = 1; i <= 10000; ++i)
        thread.Start([&sum, i] { sum += i; });
    thread.Wait();
    checks.Expect(sum == 50005000, "each work after the one before");
    const auto fail = [] { throw RunError(ErrorNumber::kDiskFull, "C:\\a.txt"); };
    thread.Start(fail);
    checks.ExpectFailure(
        ErrorNumber::kDiskFull, [&] { thread.Wait(); }, "a failure of the other thread");
    thread.Start(fail);
    thread.Abandon();
    checks.ExpectFailure(
        ErrorNumber::kNone, [&] { thread.Wait(); }, "a failure that was dropped");
    bool isDone = false;
    {
        SecondThread ending;
        ending.Start([&] { isDone = true; });
    }
    checks.Expect(isDone, "the work is done before the thread ends");
}

void CheckReadingAndWriting(Checks& checks, WinFiles& files, const Text& folder)
{
    const Text path = JoinPath(folder, "Räksmörgås € 日本.txt");
    WriteWholeFile(files, path, "hello world");
    checks.Expect(ReadWholeFile(files, path) == "hello world", "what was written comes back");
    {
        const auto output = files.OpenOutput(path);
        output->Write(BytesOf("HELLO all"));
        output->WriteAt(2, BytesOf("--"));
        output->Write(BytesOf("!"));
        checks.Expect(output->Position() == 10, "the position is behind the last byte");
        output->Close();
    }
    checks.Expect(ReadWholeFile(files, path) == "HE--O all!", "an overwritten file");
    const auto input = files.OpenInput(path);
    std::array<std::byte, 4> piece{};
    input->Seek(8);
    checks.Expect(input->Read(piece) == 2 && piece[1] == std::byte('!'), "reading at the end");
    checks.Expect(input->Read(piece) == 0 && input->Size() == 10, "reading behind the end");
    checks.Expect(files.FileExists(LowerCase(path)) && !files.DirExists(path), "a file is there");
    checks.Expect(files.DirExists(folder) && !files.FileExists(folder), "a folder is there");
}

void CheckSaving(Checks& checks, WinFiles& files, const Text& folder)
{
    const Text path = JoinPath(folder, "saved.qnp");
    SaveWholeFile(files, path, "old");
    {
        SavedFile running(files, path);
        running.Write(BytesOf("running"));
        checks.Expect(files.OpenNew(running.TemporaryPath()) == nullptr, "a name that is taken");
        SaveWholeFile(files, path, "new");
        checks.Expect(files.FileExists(running.TemporaryPath()),
                      "a temporary file in use is nobody else's");
        checks.Expect(ReadWholeFile(files, path) == "new", "a file in the place of another");
        running.Close();
        running.Commit();
    }
    checks.Expect(ReadWholeFile(files, path) == "running", "the one that came last");
    WriteWholeFile(files, path + ".tmp7", "left by a program that was killed");
    {
        SavedFile dropped(files, path);
    }
    files.SetReadOnly(path, true);
    checks.ExpectFailure(
        ErrorNumber::kPathFileAccess, [&] { SaveWholeFile(files, path, "x"); },
        "saving over a read-only file");
    files.SetReadOnly(path, false);
    checks.Expect(ReadWholeFile(files, path) == "running", "the file as it was");
    checks.Expect(KeepBeside(files, path) == path + ".bak", "a file kept beside");
    {
        const auto lock = LockSavedFile(files, path, LockWait::None);
        checks.Expect(lock != nullptr && !LockSavedFile(files, path, LockWait::None),
                      "a lock keeps others out");
    }
    checks.Expect(LockSavedFile(files, path, LockWait::UntilFree) != nullptr, "a free lock");
    std::size_t named = 0;
    for (const FolderEntry& entry : files.List(folder))
        named += entry.name.starts_with("saved.qnp") ? 1 : 0;
    checks.Expect(named == 2, "the file and the kept one alone are left");
}

void CheckFileInformation(Checks& checks, WinFiles& files, const Text& folder)
{
    const Text path = JoinPath(folder, "status.bin");
    WriteWholeFile(files, path, "12345");
    for (const LocalTime& time : {LocalTime{2004, 1, 15, 13, 14, 16}, {2004, 7, 15, 13, 14, 16}}) {
        files.SetModified(path, time);
        checks.Expect(files.Status(path).modified == time, "the time of " + DateText(time));
    }
    files.SetModified(folder, {2003, 5, 6, 7, 8, 10});
    checks.Expect(files.Status(folder).modified == LocalTime{2003, 5, 6, 7, 8, 10},
                  "the time of a folder");
    files.SetReadOnly(path, true);
    checks.Expect(files.Status(path).isReadOnly && files.Status(path).size == 5, "read-only");
    checks.ExpectFailure(
        ErrorNumber::kPathFileAccess, [&] { files.OpenOutput(path); },
        "writing over a read-only file");
    files.SetReadOnly(path, false);
    files.OpenOutput(path)->Close();
    checks.Expect(files.Status(path).size == 0, "an existing file is emptied");
}

void CheckFailures(Checks& checks, WinFiles& files, const Text& folder)
{
    using namespace ErrorNumber;
    const Text missing = JoinPath(folder, "none.txt");
    const Text lost = JoinPath(folder, "none\\none.txt");
    checks.ExpectFailure(
        kFileNotFound, [&] { files.OpenInput(missing); }, "a missing file");
    checks.ExpectFailure(
        kPathNotFound, [&] { files.OpenInput(lost); }, "a missing folder");
    checks.ExpectFailure(
        kFileNotFound, [&] { files.Status(missing); }, "status of a missing file");
    checks.ExpectFailure(
        kPathNotFound, [&] { files.OpenOutput(lost); }, "output without folder");
    checks.ExpectFailure(
        kPathFileAccess, [&] { files.OpenOutput(folder); }, "output on a folder");
    checks.ExpectFailure(
        kPathFileAccess, [&] { files.OpenInput(folder); }, "input of a folder");
    checks.ExpectFailure(
        kFileNotFound, [&] { files.RemoveFile(missing); }, "removing no file");
    checks.ExpectFailure(
        kPathNotFound, [&] { files.List(missing); }, "listing no folder");
    checks.ExpectFailure(
        kBadFileName, [&] { files.OpenInput(Text("a\0b", 3)); }, "a NUL in a name");
    checks.ExpectFailure(
        kPathFileAccess, [&] { files.RemoveFolder(folder); }, "a full folder");
    checks.ExpectFailure(
        kFileNotFound, [&] { files.CopyContent(missing, missing + "2"); }, "copying no file");
    checks.Expect(!files.DirCreate("Q:\\none\\none"), "a folder on no drive");
}

void CheckFolders(Checks& checks, WinFiles& files, const Text& folder)
{
    const Text deep = JoinPath(folder, "a\\b\\c");
    checks.Expect(files.DirCreate(deep) && files.DirExists(deep), "a folder with its parents");
    checks.Expect(files.DirCreate(deep), "a folder that is there");
    WriteWholeFile(files, JoinPath(deep, "z.txt"), "z");
    files.CopyContent(JoinPath(deep, "z.txt"), JoinPath(deep, "A.txt"));
    files.SetModified(JoinPath(deep, "z.txt"), {2001, 2, 3, 4, 5, 6});
    files.CopyContent(JoinPath(deep, "z.txt"), JoinPath(deep, "A.txt"));
    checks.Expect(files.Status(JoinPath(deep, "A.txt")).modified == LocalTime{2001, 2, 3, 4, 5, 6},
                  "a copy keeps its date");
    const auto entries = files.List(deep);
    checks.Expect(entries.size() == 2 && entries[0].name == "A.txt" && entries[1].name == "z.txt",
                  "a listing in order");
    files.Rename(JoinPath(deep, "z.txt"), JoinPath(deep, "A.txt"));
    checks.Expect(files.List(deep).size() == 1, "renaming replaces");
    files.RemoveFile(JoinPath(deep, "A.txt"));
    files.RemoveFolder(deep);
    checks.Expect(!files.DirExists(deep), "a removed folder");

    Text longPath = folder;
    for (int i = 0; i < 12; ++i)
        longPath = JoinPath(longPath, Text(30, static_cast<char>('a' + i)));
    checks.Expect(files.DirCreate(longPath), "a path of 370 characters");
    WriteWholeFile(files, JoinPath(longPath, "x.txt"), "far");
    checks.Expect(ReadWholeFile(files, JoinPath(longPath, "x.txt")) == "far", "a file far down");
    checks.Expect(files.List(longPath).size() == 1, "a listing far down");
}

void CheckDrives(Checks& checks, WinFiles& files, const Text& folder)
{
    checks.Expect(files.FreeSpace(folder) > 0, "room on the disk");
    checks.Expect(files.DriveType("C:\\") == DriveKind::Fixed, "drive C: is fixed");
    checks.Expect(files.DriveType("Q:\\") == DriveKind::NoRoot, "there is no drive Q:");
    checks.Expect(!files.ShortPath(folder).empty(), "a short path");
}

void CheckMachine(Checks& checks, const WinFiles& files)
{
    WinMachine machine;
    for (const Text& folder :
         {machine.GetWindowsDir(), machine.GetSystemDir(), machine.GetProgramFilesDir(),
          machine.GetMyDocumentsDir(), machine.GetSysAppDataDirectory(),
          machine.GetSysLocalAppDataDirectory(), machine.GetTempDir()})
        checks.Expect(files.DirExists(folder) && !folder.ends_with("\\"), "the folder " + folder);
    checks.Expect(EqualIgnoreCase(machine.GetWindowsDir(), "C:\\windows"), "the Windows folder");
    checks.Expect(machine.Now().year >= 2024, "the clock");
    checks.Expect(machine.Random(1) == 0, "a number out of one");
    unsigned seen = 0;
    for (int i = 0; i < 200; ++i)
        seen |= 1U << machine.Random(4);
    checks.Expect(seen == 0xF, "numbers out of four");
    checks.Expect(machine.DecimalSign() == '.' || machine.DecimalSign() == ',', "a decimal sign");

    constexpr auto kRoot = RegistryRoot::LocalMachine;
    const Text key = "Software\\Microsoft\\Windows\\CurrentVersion";
    const auto found = machine.ReadRegistryValue(kRoot, key, "ProgramFilesDir");
    checks.Expect(found == machine.GetProgramFilesDir(), "a value of the registry");
    checks.Expect(!machine.ReadRegistryValue(kRoot, key, "none"), "a missing value");
    checks.Expect(!machine.ReadRegistryValue(kRoot, "none\\none", ""), "a missing key");
    checks.ExpectFailure(
        ErrorNumber::kFileNotFound, [&] { machine.StartProgram("C:\\none.exe", ""); },
        "starting no program");
}

// Whether everyone has some right to the folder. Wine gives the rights of the Unix folder here.
bool IsOpenToEveryone(const Text& folder)
{
    BYTE everyone[SECURITY_MAX_SID_SIZE];
    DWORD size = sizeof everyone;
    ACL* list = nullptr;
    void* security = nullptr;
    std::wstring path = Wide(folder);
    if (!CreateWellKnownSid(WinWorldSid, nullptr, everyone, &size) ||
        GetNamedSecurityInfoW(path.data(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr,
                              nullptr, &list, nullptr, &security) != ERROR_SUCCESS)
        return true;
    bool isOpen = list == nullptr;
    void* entry = nullptr;
    for (DWORD i = 0; list != nullptr && GetAce(list, i, &entry); ++i) {
        auto* const allowed = static_cast<ACCESS_ALLOWED_ACE*>(entry);
        isOpen = isOpen || (allowed->Header.AceType == ACCESS_ALLOWED_ACE_TYPE &&
                            EqualSid(&allowed->SidStart, everyone));
    }
    LocalFree(security);
    return isOpen;
}

void CheckLockedFolder(Checks& checks, FileSystem& files, const Text& folder)
{
    const Text open = JoinPath(folder, "open");
    const Text locked = JoinPath(folder, "locked");
    files.DirCreate(open);
    checks.Expect(IsOpenToEveryone(open), "any folder is open to everyone");
    checks.Expect(MakeLockedFolder(Wide(locked).c_str()), "making a locked folder");
    checks.Expect(!IsOpenToEveryone(locked), "a locked folder is closed to everyone");
    checks.Expect(!MakeLockedFolder(Wide(locked).c_str()) && GetLastError() == ERROR_ALREADY_EXISTS,
                  "a locked folder is always a new one");
    const Text file = JoinPath(locked, "a.txt");
    WriteWholeFile(files, file, "text");
    checks.Expect(ReadWholeFile(files, file) == "text", "a file in a locked folder");
    files.RemoveFile(file);
    files.RemoveFolder(locked);
    checks.Expect(!files.DirExists(locked), "removing a locked folder");
}

// For a file that is written again.
void CheckCopiedRights(Checks& checks, FileSystem& files, const Text& folder)
{
    constexpr DWORD kAttributes =
        FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
    const Text first = JoinPath(folder, "closed.ini");
    const Text second = JoinPath(folder, "new.ini");
    WriteWholeFile(files, first, "old");
    WriteWholeFile(files, second, "new");
    LockFileToOthers(Wide(first).c_str());
    checks.Expect(IsOpenToEveryone(second) && !IsOpenToEveryone(first),
                  "a file is open to everyone until it is closed");
    SetFileAttributesW(Wide(first).c_str(), kAttributes);
    checks.Expect(CopyRights(Wide(first).c_str(), Wide(second).c_str()) == ERROR_SUCCESS,
                  "copying rights");
    checks.Expect(!IsOpenToEveryone(second), "the copy is closed, too");
    checks.Expect((GetFileAttributesW(Wide(second).c_str()) & kAttributes) == kAttributes,
                  "attributes are copied");
    files.SetReadOnly(second, false);
    checks.Expect(ReadWholeFile(files, second) == "new", "the copy keeps its content");
    files.RemoveFile(second);
    files.SetReadOnly(first, false);
    files.RemoveFile(first);
}

// Until it is closed, others can't replace it by another file.
void CheckHeldFile(Checks& checks, FileSystem& files, const Text& folder)
{
    const Text path = JoinPath(folder, "held.dat");
    const Text other = JoinPath(folder, "other.dat");
    WriteWholeFile(files, path, "as it was");
    WriteWholeFile(files, other, "other");
    {
        const auto held = OpenHeldFile(path);
        checks.Expect(held->Size() == 9, "a held file has its size");
        const int inUse = ErrorNumber::kFileInUse;
        checks.ExpectFailure(
            inUse, [&] { files.OpenOutput(path); }, "writing to a held file");
        checks.Expect(RunErrorNumber([&] { files.Rename(other, path); }) != ErrorNumber::kNone,
                      "another file in the place of a held one");
        checks.ExpectFailure(
            inUse, [&] { files.RemoveFile(path); }, "removing a held file");
        checks.Expect(ReadWholeFile(files, path) == "as it was", "a held file can be read");
    }
    {
        const auto written = files.OpenOutput(path);
        checks.ExpectFailure(
            ErrorNumber::kFileInUse, [&] { OpenHeldFile(path); },
            "holding a file that somebody writes to");
    }
    files.RemoveFile(path);
    files.RemoveFile(other);
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int)
{
    int count = 0;
    wchar_t** arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    if (arguments == nullptr || count != 3)
        return 1000;
    Checks checks;
    WinFiles files;
    const Text folder = Narrow(arguments[1]);
    try {
        CheckCrypto(checks);
        CheckDigests(checks);
        CheckSecondThread(checks);
        CheckReadingAndWriting(checks, files, folder);
        CheckSaving(checks, files, folder);
        CheckFileInformation(checks, files, folder);
        CheckFailures(checks, files, folder);
        CheckFolders(checks, files, folder);
        CheckDrives(checks, files, folder);
        CheckMachine(checks, files);
        CheckLockedFolder(checks, files, folder);
        CheckCopiedRights(checks, files, folder);
        CheckHeldFile(checks, files, folder);
    } catch (const std::exception& failure) {
        checks.Expect(false, Text("a failure that nobody caught: ") + failure.what());
    }
    WriteWholeFile(files, Narrow(arguments[2]), checks.Log());
    return checks.Failures();
}
