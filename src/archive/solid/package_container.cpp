#include "archive/solid/package_container.h"

#include "archive/solid/solid_container.h"

namespace quillon {

namespace {

class ZipContainer : public Container {
public:
    ZipContainer(std::unique_ptr<InputFile> file, const Inflation& inflation)
        : reader_(std::move(file), inflation)
    {
    }

    const std::vector<ZipEntry>& Entries() const override { return reader_.Entries(); }
    void Extract(const ZipEntry& entry, const Text& password, const ZipReader::Sink& sink) override
    {
        reader_.Extract(entry, password, sink);
    }

private:
    ZipReader reader_;
};

} // namespace

std::unique_ptr<Container> OpenAnyContainer(std::unique_ptr<InputFile> file,
                                            const Inflation& inflation, const FrameDecoding& frames)
{
    if (IsSolidContainer(*file))
        return std::make_unique<SolidContainer>(std::move(file), frames);
    return std::make_unique<ZipContainer>(std::move(file), inflation);
}

} // namespace quillon
