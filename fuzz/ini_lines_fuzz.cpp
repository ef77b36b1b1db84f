// INI lists of any content: each value has its file and section, nothing is passed over without a
// reason, and a list that is written from what was read is read as the same.
#include "helpers/ansi_text.h"
#include "require.h"
#include "runtime/ini_files/ini_lines.h"

#include <algorithm>
#include <tuple>

using namespace quillon;

namespace {

using Value = std::tuple<Text, Text, Text, Text>;

std::vector<Value> ValuesOf(const IniList& list)
{
    std::vector<Value> values;
    for (const IniLine& line : list.lines)
        if (!line.name.empty())
            values.emplace_back(line.file, line.section, line.name, line.value);
    return values;
}

Text ListOf(const std::vector<Value>& values)
{
    Text list;
    for (const auto& [file, section, name, value] : values)
        list += "-- " + file + " --\r\n[" + section + "]\r\n" + name + "=" + value + "\r\n";
    return list;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const Text text = AnsiText::FromBytes({reinterpret_cast<const char*>(bytes), size});
    const IniList list = ReadIniLines(text);
    for (const IniLine& line : list.lines) {
        Require(!line.file.empty());
        Require(line.name.empty() ? line.value.empty() : !line.section.empty());
        Require(line.name.find('=') == Text::npos);
    }
    for (const IniList::Unreadable& line : list.unreadable)
        Require(!line.line.empty());
    Require(list.lines.size() + list.unreadable.size() <= SplitLines(text).size());

    const std::vector<Value> values = ValuesOf(list);
    const IniList again = ReadIniLines(ListOf(values));
    Require(again.unreadable.empty());
    Require(ValuesOf(again) == values);
    return 0;
}
