#include "runtime/win32/registration/register_process.h"

#include "helpers/number_text.h"
#include "platform/win32/open_file.h"
#include "platform/win32/wide_text.h"
#include "runtime/win32/processes/private_folder.h"
#include "runtime/win32/processes/wait_for_program.h"
#include "runtime/win32/registration/register_server.h"

#include <objbase.h>

namespace quillon {

namespace {

// With the handle of the pipe after them.
constexpr std::string_view kRegister = "/REGISTER=";
constexpr std::string_view kUnregister = "/UNREGISTER=";

std::wstring ReadPath(HANDLE pipe)
{
    if (GetFileType(pipe) != FILE_TYPE_PIPE)
        return {};
    Text path;
    char piece[512];
    DWORD count = 0;
    while (ReadFile(pipe, piece, sizeof piece, &count, nullptr) && count > 0)
        path.append(piece, count);
    return Wide(path);
}

} // namespace

int RegisterInOwnProcess(const Text& path, bool on)
{
    HANDLE read = nullptr;
    HANDLE write = nullptr;
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    if (!CreatePipe(&read, &write, &inherited, 0))
        return kRegistrationFailed;
    FileHandle readEnd(read);
    FileHandle writeEnd(write);
    // Otherwise the pipe would never end for the reader.
    SetHandleInformation(write, HANDLE_FLAG_INHERIT, 0);
    std::wstring line = Wide("\"" + ProgramPath() + "\" " + Text(on ? kRegister : kUnregister) +
                             NumberText(reinterpret_cast<INT_PTR>(read)));
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = SW_HIDE;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(Wide(ProgramPath()).c_str(), line.data(), nullptr, nullptr, TRUE,
                        CREATE_NO_WINDOW, nullptr, nullptr, &startup, &process))
        return kRegistrationFailed;
    const FileHandle thread(process.hThread);
    const FileHandle running(process.hProcess);
    DWORD written = 0;
    WriteFile(write, path.data(), static_cast<DWORD>(path.size()), &written, nullptr);
    writeEnd.Close();
    return static_cast<int>(WaitForProgram(running.Get()));
}

std::optional<int> RegisterForParent(std::string_view commandLine)
{
    const bool on = commandLine.starts_with(kRegister);
    if (!on && !commandLine.starts_with(kUnregister))
        return std::nullopt;
    const std::size_t handle = (on ? kRegister : kUnregister).size();
    const FileHandle pipe(
        reinterpret_cast<HANDLE>(static_cast<INT_PTR>(LeadingNumber(commandLine.substr(handle)))));
    const std::wstring path = ReadPath(pipe.Get());
    if (path.empty())
        return kRegistrationFailed;
    OleInitialize(nullptr);
    const int result = RegisterServerFile(path.c_str(), on);
    OleUninitialize();
    return result;
}

} // namespace quillon
