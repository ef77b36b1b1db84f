// Visual Basic 5 and 6 project files of any content: names come out of whole lines only, in bounded
// numbers, and none is empty.
#include "importers/project_lines.h"
#include "importers/vb_project.h"

#include <cstdint>
#include <cstdlib>

using namespace quillon;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const ProjectLines project =
        SplitProject({reinterpret_cast<const char*>(bytes), size}, "C:\\a.vbp");
    for (const Text& line : project.lines) {
        if (line.size() > kMaxProjectLineLength ||
            line.find_first_of(std::string_view("\r\n\0", 3)) != Text::npos)
            std::abort();
        if (const auto name = ActiveXFileIn(line);
            name && (name->empty() || line.find(*name) == Text::npos))
            std::abort();
        if (const auto module = ModuleIn(line); module && module->file.find('\\') != Text::npos)
            std::abort();
    }
    if (ActiveXFilesOf(project.lines).names.size() > kMaxReferences)
        std::abort();
    return 0;
}
