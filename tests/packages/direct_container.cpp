#include "packages/direct_container.h"

#include "archive/solid/package_container.h"

namespace quillon {

OpenContainer DirectContainers()
{
    return [](std::unique_ptr<InputFile> archive) { return OpenAnyContainer(std::move(archive)); };
}

} // namespace quillon
