#include "formats/container_names.h"

#include "helpers/windows_path.h"

#include <algorithm>

namespace quillon {

namespace {

/// The parts between the characters of `separators`, empty ones left out.
std::vector<Text> PartsOf(std::string_view text, std::string_view separators)
{
    std::vector<Text> parts;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of(separators), text.size());
        if (end > 0)
            parts.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return parts;
}

} // namespace

Text ContainerEntryName(std::string_view path)
{
    std::vector<Text> walked;
    for (Text& part : PartsOf(WithoutDrive(LowerCase(path)), "\\/")) {
        if (part == "." || (part == ".." && walked.empty()))
            continue;
        if (part == "..")
            walked.pop_back();
        else
            walked.push_back(std::move(part));
    }
    Text name;
    for (const Text& part : walked)
        name.append(name.empty() ? "" : "/").append(part);
    return name;
}

std::vector<Text> ServedRows(std::string_view comment)
{
    return PartsOf(comment, " ");
}

} // namespace quillon
