// Registry lists of any content: every line comes back once and in order, read or with the reason
// why not, and what the tool's own dialog writes is read as what it was.
#include "actions/registry_list.h"
#include "actions/unsavable_line.h"
#include "helpers/ansi_text.h"
#include "require.h"
#include "runtime/registry/registry_lines.h"

#include <algorithm>

using namespace quillon;

namespace {

void CheckLine(const RegistryLine& line)
{
    using Kind = RegistryLine::Kind;
    Require((line.kind == Kind::Unreadable) == line.reason.has_value());
    Require(PlainSubKey(line.key.subKey) == line.key.subKey);
    if (line.kind == Kind::TextValue || line.kind == Kind::NumberValue ||
        line.kind == Kind::BytesValue)
        Require(line.hasValue && !line.key.subKey.empty());
    const bool removes = line.kind == Kind::Delete || line.kind == Kind::Uninstall;
    Require(!RemovesSystemKey(line) || (removes && !line.hasValue));
}

/// The text as the data of a value whose line the dialog makes.
void CheckEntry(const Text& data, RegistryValueType type)
{
    const bool isOne = type == RegistryValueType::Dword    ? IsRegistryNumber(data)
                       : type == RegistryValueType::Binary ? IsRegistryBinary(data)
                                                           : true;
    if (!isOne || data.find_first_of("\r\n") != Text::npos)
        return;
    const RegistryEntry entry{"HKEY_CURRENT_USER", "\\SOFTWARE\\Prov", "Namn", data, type};
    const RegistryLine line = ReadRegistryLine(MakeRegistryLine(entry));
    if (type == RegistryValueType::String)
        Require(line.kind == RegistryLine::Kind::TextValue && line.text == data);
    if (type == RegistryValueType::Dword)
        Require(line.kind == RegistryLine::Kind::NumberValue);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const Text list = AnsiText::FromBytes({reinterpret_cast<const char*>(bytes), size});
    const std::vector<RegistryListLine> lines = ReadRegistryLines(list);
    std::size_t at = 0;
    for (const RegistryListLine& line : lines) {
        Require(!line.line.empty());
        at = list.find(line.line, at);
        Require(at != Text::npos);
        at += line.line.size();
        CheckLine(line.read);
    }
    FindUnsavableLine(&section::Lists::Registry, list);
    for (const auto type :
         {RegistryValueType::String, RegistryValueType::Dword, RegistryValueType::Binary})
        CheckEntry(list, type);
    return 0;
}
