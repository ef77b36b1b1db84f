// INI files of the machine, which any program may have written: what the setup changes in one, the
// uninstaller takes back to the byte.
#include "ini/encoded_ini.h"

#include <cstdint>
#include <cstdlib>

using namespace quillon;

namespace {

constexpr const char* kSection = "Å";
constexpr const char* kName = "n";

// As `ini_changes.cpp` does it.
struct Change {
    bool makesSection = false;
    std::string openEnd;
    std::optional<std::string> formerLine;
};

Change Set(EncodedIni& file, const std::string& section, const std::string& name)
{
    Change change;
    change.makesSection = !file.ini.HasSection(section);
    change.openEnd = file.ini.OpenLastLine();
    file.ini.MakeSection(section);
    change.formerLine = file.ini.LineOf(section, name);
    file.ini.SetValue(section, name, "v");
    if (!file.ini.OpenLastLine().empty())
        change.openEnd.clear();
    return change;
}

void TakeBack(EncodedIni& file, const std::string& section, const std::string& name,
              const Change& change)
{
    if (change.formerLine)
        file.ini.SetLine(section, name, *change.formerLine);
    else
        file.ini.RemoveValue(section, name);
    if (change.makesSection)
        file.ini.RemoveEmptySection(section);
    if (!change.openEnd.empty())
        file.ini.RemoveFinalLineBreakAfter(change.openEnd);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    auto file = EncodedIni::Read(bytes);
    if (!file)
        return 0;
    const std::string section = file->Coded(kSection);
    const std::string name = file->Coded(kName);
    const Change change = Set(*file, section, name);
    // What is written is what every reader finds.
    const auto written = EncodedIni::Read(file->Bytes());
    if (!written || written->ini.Value(section, name) != "v")
        std::abort();
    TakeBack(*file, section, name, change);
    if (file->Bytes() != bytes)
        std::abort();
    return 0;
}
