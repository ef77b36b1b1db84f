#include "platform/system_description.h"

#include "helpers/number_text.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win_machine.h"

#include <array>
#include <windows.h>

namespace quillon {

namespace {

/// "Windows XP, 5.1 (2600)", as far as the system says; the older ones have their names elsewhere.
Text NameOfSystem()
{
    const WinMachine machine;
    const auto value = [&](const char* key, const char* name) {
        return machine.GetRegKeyStr(RegistryRoot::LocalMachine, key, name);
    };
    constexpr const char* kKey = "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion";
    constexpr const char* kOldKey = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion";
    const Text name = value(kKey, "ProductName");
    if (name.empty())
        return value(kOldKey, "ProductName") + ", " + value(kOldKey, "VersionNumber");
    return name + ", " + value(kKey, "CurrentVersion") + " (" + value(kKey, "CurrentBuildNumber") +
           ")";
}

Text NameOfProcessor(WORD architecture)
{
    switch (architecture) {
    case PROCESSOR_ARCHITECTURE_INTEL:
        return "x86";
    case PROCESSOR_ARCHITECTURE_AMD64:
        return "x86_64";
    default:
        return "nr " + NumberText(architecture);
    }
}

Text LocaleWord(LCTYPE which)
{
    std::array<wchar_t, 16> word{};
    const int length =
        GetLocaleInfoW(LOCALE_USER_DEFAULT, which, word.data(), static_cast<int>(word.size()));
    return length > 0 ? Narrow({word.data(), static_cast<std::size_t>(length) - 1}) : Text();
}

} // namespace

SystemDescription DescribeSystem()
{
    SYSTEM_INFO computer{};
    GetNativeSystemInfo(&computer);
    MEMORYSTATUSEX memory{};
    memory.dwLength = sizeof memory;
    GlobalMemoryStatusEx(&memory);
    return {.system = NameOfSystem(),
            .processor = NameOfProcessor(computer.wProcessorArchitecture),
            .processorCount = static_cast<int>(computer.dwNumberOfProcessors),
            .memory = memory.ullTotalPhys,
            .freeMemory = memory.ullAvailPhys,
            .language =
                LocaleWord(LOCALE_SISO639LANGNAME) + "_" + LocaleWord(LOCALE_SISO3166CTRYNAME),
            .codePage = "Windows-" + NumberText(static_cast<std::int64_t>(GetACP())),
            .desktop = ""};
}

} // namespace quillon
