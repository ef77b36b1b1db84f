#include "platform/system_description.h"

#include "helpers/number_text.h"
#include "platform/posix/environment.h"
#include "platform/posix/host_lines.h"

#include <clocale>
#include <langinfo.h>
#include <sys/utsname.h>
#include <thread>

namespace quillon {

namespace {

/// The value of `name=value` in a file of such lines, without its quotation marks.
Text ValueIn(const char* path, const Text& name)
{
    for (const std::string& line : LinesOfHostFile(path))
        if (line.starts_with(name + "="))
            return RemoveQuotes(line.substr(name.size() + 1));
    return {};
}

/// A line of /proc/meminfo, such as "MemTotal:  2048 kB", in bytes; 0 where the system has none.
std::uint64_t MemoryLine(const Text& name)
{
    for (const std::string& line : LinesOfHostFile("/proc/meminfo"))
        if (line.starts_with(name + ":"))
            return 1024 * static_cast<std::uint64_t>(
                              LeadingNumber(TrimBlanks(line.substr(name.size() + 1))));
    return 0;
}

Text FirstSet(std::initializer_list<const char*> names)
{
    for (const char* name : names)
        if (Text value = EnvironmentVariable(name); !value.empty())
            return value;
    return {};
}

} // namespace

SystemDescription DescribeSystem()
{
    utsname kernel{};
    uname(&kernel);
    const Text distribution = ValueIn("/etc/os-release", "PRETTY_NAME");
    const Text name = Text(kernel.sysname) + " " + kernel.release;
    return {.system = distribution.empty() ? name : distribution + ", " + name,
            .processor = kernel.machine,
            .processorCount = static_cast<int>(std::thread::hardware_concurrency()),
            .memory = MemoryLine("MemTotal"),
            .freeMemory = MemoryLine("MemAvailable"),
            .language = FirstSet({"LC_ALL", "LC_MESSAGES", "LANG"}),
            .codePage = nl_langinfo(CODESET),
            .desktop = FirstSet({"XDG_CURRENT_DESKTOP", "XDG_SESSION_TYPE", "DESKTOP_SESSION"})};
}

} // namespace quillon
