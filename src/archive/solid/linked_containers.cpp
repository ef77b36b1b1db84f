#include "archive/solid/package_container.h"

namespace quillon {

std::unique_ptr<Container> OpenAnyContainer(std::unique_ptr<InputFile> file)
{
    return OpenAnyContainer(std::move(file), LinkedInflation(), LinkedFrameDecoding());
}

} // namespace quillon
