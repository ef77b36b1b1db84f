#include "formats/container_names.h"

#include "helpers/windows_path.h"

#include <algorithm>
#include <vector>

namespace quillon {

namespace {

/// The names between the separators of folders, empty ones left out.
std::vector<Text> PartsOf(std::string_view path)
{
    std::vector<Text> parts;
    while (!path.empty()) {
        const std::size_t end = std::min(path.find_first_of("\\/"), path.size());
        if (end > 0)
            parts.emplace_back(path.substr(0, end));
        path.remove_prefix(std::min(end + 1, path.size()));
    }
    return parts;
}

} // namespace

Text ContainerEntryName(std::string_view path)
{
    std::vector<Text> walked;
    for (Text& part : PartsOf(WithoutDrive(LowerCase(path)))) {
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

} // namespace quillon
