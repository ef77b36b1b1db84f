#include "archive/writer/source_status.h"

#include "archive/writer/source_block.h"

namespace quillon {

std::vector<FileStatus> StatusOfSources(const FileSystem& files, std::span<const ZipSource> sources,
                                        const std::function<void()>& processEvents)
{
    std::vector<FileStatus> statuses;
    statuses.reserve(sources.size());
    for (const ZipSource& source : sources) {
        if (processEvents)
            processEvents();
        ReadingSource(source.path, [&] { statuses.push_back(files.Status(source.path)); });
        if (statuses.back().isFolder)
            throw CompressionFailure(CompressionResult::kNoReadAccess, source.path);
    }
    return statuses;
}

} // namespace quillon
