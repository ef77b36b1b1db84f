// Visual Basic .NET project files of any content: references come in bounded numbers, each with its
// braces, and an included file is given back in upper case.
#include "importers/project_lines.h"
#include "importers/vb_project.h"
#include "importers/vbnet_project.h"

#include <cstdint>
#include <cstdlib>

using namespace quillon;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const ProjectLines project =
        SplitProject({reinterpret_cast<const char*>(bytes), size}, "C:\\a.vbproj");
    if (const auto references = ComReferencesOf(project.lines)) {
        if (references->list.size() > kMaxReferences)
            std::abort();
        for (const ComReference& reference : references->list)
            if (!reference.guid.starts_with('{') || !reference.guid.ends_with('}'))
                std::abort();
    }
    for (const Text& line : IncludedFileLines(project.lines))
        if (line != UpperCase(line))
            std::abort();
    IsMsBuildProject(project.lines);
    return 0;
}
