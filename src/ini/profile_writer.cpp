#include "ini/profile_writer.h"

#include "helpers/ansi_text.h"
#include "ini/profile_lines.h"
#include "platform/whole_file.h"

namespace quillon {

namespace {

using Range = ProfileSections::Range;

std::string SettingLine(std::string_view key, std::string_view value)
{
    return std::string(key).append("=").append(value).append(kLineBreak);
}

// Goes in at `position`, on a line of its own.
void InsertLines(std::string& bytes, std::size_t position, const std::string& lines)
{
    const bool breaksLine = position > 0 && bytes[position - 1] != '\n';
    bytes.insert(position, breaksLine ? std::string(kLineBreak) + lines : lines);
}

// Puts the key where the section has it, or after the section's last line that is not empty, so
// that the empty lines before the next section stay together.
void SetInSection(std::string& bytes, const Range& range, const std::string& key,
                  const std::string& value)
{
    std::size_t afterLast = range.begin;
    IniScanner lines(std::string_view(bytes).substr(0, range.end), kProfileSyntax, range.begin);
    while (const auto line = lines.Next()) {
        const bool isValue = line->kind == ScannedLine::Kind::Value;
        if (isValue && FoldedName(line->name) == FoldedName(key)) {
            const std::string setting = SettingLine(line->name, value);
            bytes.replace(line->begin, line->next - line->begin, setting);
            return;
        }
        if (!BareValue(line->whole).empty())
            afterLast = line->next;
    }
    InsertLines(bytes, afterLast, SettingLine(key, value));
}

} // namespace

void WriteProfileValue(FileSystem& files, const Text& path, const Text& section, const Text& key,
                       const Text& value)
{
    std::string bytes = files.FileExists(path) ? ReadWholeFile(files, path) : std::string();
    SetProfileValue(bytes, section, key, value);
    WriteWholeFile(files, path, bytes);
}

void SetProfileValue(std::string& bytes, const Text& section, const Text& key, const Text& value)
{
    const std::string sectionName = AnsiText::ToBytes(section);
    const std::string keyName = AnsiText::ToBytes(key);
    const std::string valueBytes = AnsiText::ToBytes(value);

    if (const auto range = ProfileSections(bytes).Find(sectionName)) {
        SetInSection(bytes, *range, keyName, valueBytes);
    } else {
        const std::string header = "[" + sectionName + "]" + std::string(kLineBreak);
        InsertLines(bytes, bytes.size(), header + SettingLine(keyName, valueBytes));
    }
}

} // namespace quillon
