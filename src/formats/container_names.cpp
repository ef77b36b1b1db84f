#include "formats/container_names.h"

#include "helpers/windows_path.h"

#include <vector>

namespace quillon {

Text ContainerEntryName(std::string_view path)
{
    std::vector<Text> walked;
    for (Text& part : PathParts(WithoutDrive(LowerCase(path)))) {
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
