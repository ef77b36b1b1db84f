#include "runtime/win32/machine/restart_manager.h"

#include "platform/win32/open_file.h"
#include "platform/win32/wide_text.h"
#include "runtime/win32/processes/program_start.h"

namespace quillon {

namespace {

constexpr const char* kLibrary = "rstrtmgr.dll";

// The library is not there on every Windows, so nothing of it is linked.
template <class Function>
Function OfLibrary(HMODULE library, const char* name)
{
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

} // namespace

RestartManager::~RestartManager()
{
    if (hasClosed_)
        OfLibrary<decltype(&RmRestart)>(library_, "RmRestart")(session_, 0, nullptr);
    End();
}

// A session is about the files that were named in it, so each answer has one of its own.
bool RestartManager::Begin()
{
    if (library_ == nullptr)
        library_ = LoadFromSystemFolder(kLibrary);
    if (library_ == nullptr)
        return false;
    wchar_t key[CCH_RM_SESSION_KEY + 1] = {};
    isOpen_ = OfLibrary<decltype(&RmStartSession)>(library_, "RmStartSession")(&session_, 0, key) ==
              ERROR_SUCCESS;
    return isOpen_;
}

void RestartManager::End()
{
    if (isOpen_)
        OfLibrary<decltype(&RmEndSession)>(library_, "RmEndSession")(session_);
    isOpen_ = false;
}

bool RestartManager::IsHeld(const Text& path) const
{
    const HANDLE file = CreateFileW(WidePath(path).c_str(), GENERIC_WRITE | DELETE, kShareAll,
                                    nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        const DWORD failure = GetLastError();
        return failure == ERROR_SHARING_VIOLATION || failure == ERROR_LOCK_VIOLATION ||
               failure == ERROR_USER_MAPPED_FILE;
    }
    CloseHandle(file);
    return false;
}

std::vector<Text> RestartManager::ProgramsHolding(const std::vector<Text>& files)
{
    // Only the session that closed the programs can start them again.
    if (!hasClosed_)
        End();
    if (!isOpen_ && !Begin())
        return {};
    std::vector<std::wstring> paths;
    for (const Text& file : files)
        paths.push_back(Wide(file));
    std::vector<const wchar_t*> names;
    for (const std::wstring& path : paths)
        names.push_back(path.c_str());
    if (OfLibrary<decltype(&RmRegisterResources)>(library_, "RmRegisterResources")(
            session_, static_cast<UINT>(names.size()), names.data(), 0, nullptr, 0, nullptr) !=
        ERROR_SUCCESS)
        return {};
    if (startsAgain_ == StartsAgain::NotNamedOnes)
        LeaveEnded(paths);
    std::vector<Text> programs;
    for (const RM_PROCESS_INFO& program : Listed())
        if (program.Process.dwProcessId != GetCurrentProcessId())
            programs.push_back(Narrow(program.strAppName));
    return programs;
}

// The desktop's own program and services have to come back, whatever they had loaded; a program
// that is about to go has not. Of a file that is no program nothing is noted.
void RestartManager::LeaveEnded(const std::vector<std::wstring>& programs) const
{
    const auto addFilter = OfLibrary<decltype(&RmAddFilter)>(library_, "RmAddFilter");
    if (addFilter == nullptr)
        return;
    for (const std::wstring& program : programs)
        addFilter(session_, program.c_str(), nullptr, nullptr, RmNoRestart);
}

// Programs start and end between two calls, so that what was needed once may be too little.
std::vector<RM_PROCESS_INFO> RestartManager::Listed() const
{
    constexpr int kMaxTries = 16;
    constexpr UINT kSpare = 16;
    const auto getList = OfLibrary<decltype(&RmGetList)>(library_, "RmGetList");
    std::vector<RM_PROCESS_INFO> found(kSpare);
    for (int i = 0; i < kMaxTries; ++i) {
        UINT needed = 0;
        auto count = static_cast<UINT>(found.size());
        DWORD reasons = 0;
        const DWORD result = getList(session_, &needed, &count, found.data(), &reasons);
        if (result == ERROR_SUCCESS) {
            found.resize(count);
            return found;
        }
        if (result != ERROR_MORE_DATA)
            break;
        found.resize(needed + kSpare);
    }
    return {};
}

bool RestartManager::CloseThem()
{
    hasClosed_ = true;
    return OfLibrary<decltype(&RmShutdown)>(library_, "RmShutdown")(session_, 0, nullptr) ==
           ERROR_SUCCESS;
}

} // namespace quillon
