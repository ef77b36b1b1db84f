#include "platform/win32/held_file.h"

#include "platform/win32/open_file.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win_failure.h"

namespace quillon {

std::unique_ptr<InputFile> OpenHeldFile(const Text& path)
{
    FileHandle file(CreateFileW(WidePath(path).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.IsOpen())
        FailAsWindowsSays(path);
    return std::make_unique<WinInputFile>(std::move(file), path);
}

} // namespace quillon
