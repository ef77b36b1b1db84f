#include "runtime/container.h"

namespace quillon {

namespace {

class DirectContainer : public Container {
public:
    explicit DirectContainer(std::unique_ptr<InputFile> file) : reader_(std::move(file)) {}

    const std::vector<ZipEntry>& Entries() const override { return reader_.Entries(); }
    void Extract(const ZipEntry& entry, const Text& password, const ZipReader::Sink& sink) override
    {
        reader_.Extract(entry, password, sink);
    }

private:
    ZipReader reader_;
};

} // namespace

OpenContainer DirectContainers(const FileSystem& files)
{
    return [&files](const Text& path) {
        return std::make_unique<DirectContainer>(files.OpenInput(path));
    };
}

} // namespace quillon
