// Solid containers in memory, for tests.
#pragma once

#include "archive/solid/writer/solid_container_writer.h"
#include "support/memory_host.h"
#include "support/one_file_host.h"

#include <string>
#include <vector>

namespace quillon::test {

struct ContainedFile {
    Text name;
    std::string bytes;
    Text rows = {};
};

inline std::string MakeSolidContainer(const std::vector<ContainedFile>& inputs,
                                      const SolidContainerOptions& options = {},
                                      const ZipWatch& watch = {})
{
    MemoryFiles files;
    std::vector<ZipSource> sources;
    for (const ContainedFile& input : inputs) {
        sources.push_back({"C:\\" + input.name, input.name, input.rows});
        files.Put(sources.back().path, input.bytes);
    }
    std::string bytes;
    BytesOutput output(bytes);
    WriteSolidContainer(files, sources, output, options, watch);
    return bytes;
}

} // namespace quillon::test
