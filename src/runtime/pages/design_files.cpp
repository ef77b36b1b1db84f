#include "runtime/pages/design_files.h"

#include "formats/package_files.h"
#include "helpers/windows_path.h"
#include "pictures/picture_file.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"
#include "runtime/pages/standard_picture.h"

#include <algorithm>

namespace quillon {

DesignFiles::DesignFiles(const FileSystem& files, OpenContainer openContainer, Text packageFolder,
                         Names names)
    : files_(files), openContainer_(std::move(openContainer)),
      packageFolder_(std::move(packageFolder)), names_(names)
{
}

std::string DesignFiles::Read(const Text& name)
{
    return names_ == Names::WholePaths ? ReadWholeFile(files_, name) : ReadFromPackage(name);
}

std::string DesignFiles::ReadFromPackage(const Text& name)
{
    if (!container_)
        container_ = openContainer_(JoinPath(packageFolder_, kDesignContainerName));
    const auto& entries = container_->Entries();
    const auto entry = std::ranges::find_if(
        entries, [&](const ZipEntry& one) { return EqualIgnoreCase(one.name, name); });
    if (entry == entries.end() || entry->size > kMaxPictureFileBytes)
        throw RunError(ErrorNumber::kFileNotFound, name);
    std::string bytes;
    container_->Extract(*entry, {}, [&](std::span<const std::byte> part) {
        bytes.append(reinterpret_cast<const char*>(part.data()), part.size());
    });
    return bytes;
}

ScalablePicture DesignFiles::SidePicture(const Text& name)
{
    if (name.empty())
        return StandardSidePicture();
    try {
        PictureResult result = DecodePicture(Read(name));
        if (result.fault == PictureFault::None)
            return std::move(result.picture);
    } catch (const RunError&) {
        // The page is worth more than its picture.
    } catch (const ZipError&) {
    }
    return StandardSidePicture();
}

} // namespace quillon
