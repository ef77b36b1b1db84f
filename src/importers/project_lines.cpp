#include "importers/project_lines.h"

#include "helpers/encoded_text.h"
#include "helpers/number_text.h"
#include "helpers/utf16.h"

#include <algorithm>

namespace quillon {

namespace {

// Letters with a zero after each: two bytes a unit, saved without a mark.
bool LooksLikeUtf16(std::string_view bytes)
{
    return bytes.size() >= 4 && bytes[0] != '\0' && bytes[1] == '\0' && bytes[2] != '\0' &&
           bytes[3] == '\0';
}

Text Decode(std::string_view bytes)
{
    return LooksLikeUtf16(bytes) ? FromUtf16(bytes) : DecodedText(bytes);
}

// Of a file that is too large, up to the last whole line.
std::string_view WholeLinesOf(std::string_view bytes)
{
    const std::size_t end = bytes.rfind('\n');
    return end == std::string_view::npos ? bytes : bytes.substr(0, end + 1);
}

/// Takes the line at the front of `text`, whichever of CR LF, LF and CR ends it.
std::string_view TakeLine(std::string_view& text)
{
    const std::size_t end = text.find_first_of("\r\n");
    const std::string_view line = text.substr(0, end);
    if (end == std::string_view::npos) {
        text = {};
        return line;
    }
    text.remove_prefix(text.substr(end).starts_with(kLineBreak) ? end + 2 : end + 1);
    return line;
}

bool IsReadable(std::string_view line)
{
    return line.size() <= kMaxProjectLineLength && line.find('\0') == std::string_view::npos;
}

Text SkippedLinesText(std::size_t count, std::size_t first, const Text& path)
{
    return "Projektfilen '" + path + "' är skadad: " +
           (count == 1 ? "raden " + NumberText(static_cast<std::int64_t>(first))
                       : NumberText(static_cast<std::int64_t>(count)) + " rader, den första är " +
                             NumberText(static_cast<std::int64_t>(first)) + ",") +
           " har nolltecken eller är längre än 4096 tecken och är överhoppad" +
           (count == 1 ? "." : "e.");
}

} // namespace

ProjectLines SplitProject(std::string_view bytes, const Text& path)
{
    ProjectLines project;
    const bool isTooLarge = bytes.size() > kMaxProjectBytes;
    const Text text = Decode(isTooLarge ? WholeLinesOf(bytes.substr(0, kMaxProjectBytes)) : bytes);
    std::size_t number = 0;
    std::size_t skipped = 0;
    std::size_t firstSkipped = 0;
    for (std::string_view rest = text; !rest.empty();) {
        const std::string_view line = TakeLine(rest);
        ++number;
        // A damaged line stays as an empty one: which line follows which has a meaning.
        project.lines.emplace_back(IsReadable(line) ? line : std::string_view());
        if (!IsReadable(line) && ++skipped == 1)
            firstSkipped = number;
    }
    if (skipped > 0)
        project.damage = SkippedLinesText(skipped, firstSkipped, path);
    if (isTooLarge)
        project.damage =
            "Projektfilen '" + path + "' är större än 4 MB. Endast dess första 4 MB är lästa.";
    return project;
}

ProjectLines ReadProjectLines(const FileSystem& files, const Text& path)
{
    // One byte more shows that there is more.
    return SplitProject(ReadBeginning(files, path, kMaxProjectBytes + 1), path);
}

} // namespace quillon
