// Solid payloads in memory, for tests.
#pragma once

#include "archive/solid/solid_reader.h"
#include "archive/solid/writer/solid_writer.h"
#include "support/one_file_host.h"

#include <string>
#include <utility>
#include <vector>

namespace quillon::test {

struct SolidInput {
    Text name;
    std::string bytes;
    SolidFilter filter = SolidFilter::None;
    std::optional<LocalTime> modified = {};
    std::uint32_t attributes = 0;
};

inline SolidSource SourceOf(const SolidInput& input)
{
    SolidSource source{.file = {.name = input.name,
                                .size = input.bytes.size(),
                                .modified = input.modified,
                                .attributes = input.attributes,
                                .runs = {}},
                       .open = [&input] { return std::make_unique<BytesInput>(input.bytes); }};
    if (!input.bytes.empty())
        source.file.runs = {{input.bytes.size(), input.filter}};
    return source;
}

inline std::string MakeSolid(const std::vector<SolidInput>& inputs,
                             const std::vector<SolidProperty>& properties = {},
                             const std::string& program = {}, unsigned threads = 1)
{
    std::vector<SolidSource> sources;
    for (const SolidInput& input : inputs)
        sources.push_back(SourceOf(input));
    std::string bytes;
    BytesOutput output(bytes);
    WriteSolid(properties, sources, output,
               {.program = std::as_bytes(std::span(program)), .threads = threads});
    return bytes;
}

/// What came out, in order.
class CollectingSink : public SolidSink {
public:
    void Begin(const SolidFile& file) override { files.push_back({file.name, {}}); }
    void Write(std::span<const std::byte> bytes) override
    {
        files.back().second.append(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    }
    void End() override { ++ended; }

    std::vector<std::pair<Text, std::string>> files;
    std::size_t ended = 0;
};

} // namespace quillon::test
