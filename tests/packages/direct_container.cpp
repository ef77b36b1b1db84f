#include "packages/direct_container.h"

#include "archive/solid/package_container.h"

namespace quillon {

OpenContainer DirectContainers(const FileSystem& files)
{
    return [&files](const Text& path) { return OpenAnyContainer(files.OpenInput(path)); };
}

} // namespace quillon
