#include "builder/selfextract/active_delivery.h"

#include "archive/writer/zip_writer.h"
#include "archive/zip_reader.h"
#include "builder/progress_display.h"
#include "builder/selfextract/payload_sources.h"
#include "builder/selfextract/program_identity.h"
#include "formats/self_extraction.h"
#include "helpers/windows_path.h"
#include "platform/saved_file.h"
#include "platform/whole_file.h"

#include <algorithm>

namespace quillon {

namespace Attribute = SelfExtractAttribute;

namespace {

// The attributes that the program itself needs. Paths of this machine are left out.
constexpr std::uint32_t kCarried[] = {Attribute::kUnpackPlace,    Attribute::kUnpackFolder,
                                      Attribute::kProgram,        Attribute::kShowsMessage,
                                      Attribute::kMessageTitle,   Attribute::kMessageText,
                                      Attribute::kCompanyName,    Attribute::kProductName,
                                      Attribute::kProductVersion, Attribute::kElevates};

std::vector<SolidProperty> CarriedProperties(const SelfExtractAttributes& attributes)
{
    std::vector<SolidProperty> properties;
    for (const std::uint32_t number : kCarried)
        if (const Text value = AttributeOf(attributes, number); !value.empty())
            properties.push_back({number, value});
    return properties;
}

// "C:\Bild.ico;0"; an icon file holds one icon, in several sizes.
Text IconPath(const SelfExtractAttributes& attributes)
{
    const Text icon = AttributeOf(attributes, Attribute::kIcon);
    return icon.substr(0, icon.rfind(';'));
}

/// Refuses what would make the file larger than it may be.
class LimitedOutput : public OutputFile {
public:
    LimitedOutput(OutputFile& file, std::uint64_t maxSize, Text path)
        : file_(file), maxSize_(maxSize), path_(std::move(path))
    {
    }

    void Write(std::span<const std::byte> bytes) override
    {
        if (bytes.size() > maxSize_ - std::min(maxSize_, file_.Position()))
            throw RunError(ErrorNumber::kOverflow, path_);
        file_.Write(bytes);
    }
    void WriteAt(std::uint64_t position, std::span<const std::byte> bytes) override
    {
        file_.WriteAt(position, bytes);
    }
    std::uint64_t Position() const override { return file_.Position(); }
    void Close() override { file_.Close(); }

private:
    OutputFile& file_;
    std::uint64_t maxSize_;
    Text path_;
};

ProgramIdentity IdentityOf(const SelfExtractAttributes& attributes)
{
    return {.company = AttributeOf(attributes, Attribute::kCompanyName),
            .product = AttributeOf(attributes, Attribute::kProductName),
            .version = AttributeOf(attributes, Attribute::kProductVersion),
            .description = AttributeOf(attributes, Attribute::kDescription),
            .fileName = ExtractFilename(AttributeOf(attributes, Attribute::kResult))};
}

std::vector<ProgramResource> ResourcesOf(const SelfExtractAttributes& attributes)
{
    const ProgramIdentity identity = IdentityOf(attributes);
    return {
        {ResourceType::kVersion, 1, VersionResource(identity)},
        {ResourceType::kManifest, 1, ProgramManifest(identity)},
        {ResourceType::kRawData, kSelfExtractTexts, AttributeOf(attributes, Attribute::kTexts)}};
}

} // namespace

ActiveDelivery::ActiveDelivery(Host& host, Ask& ask, Text extractor, Text standardIcon,
                               std::uint64_t maxSize)
    : host_(host), ask_(ask), extractor_(std::move(extractor)),
      standardIcon_(std::move(standardIcon)), maxSize_(maxSize)
{
}

Long ActiveDelivery::Number(const std::function<void()>& work)
{
    failure_.reset();
    return RunErrorNumber(
        [&] {
            try {
                work();
            } catch (const ZipError& error) {
                throw RunError(ErrorNumber::kDeviceIo, error.what());
            } catch (const CompressionFailure& error) {
                throw RunError(ErrorNumber::kDeviceIo, error.Path());
            }
        },
        failure_);
}

void ActiveDelivery::Method11(const Text& pattern, const Text& zipPath)
{
    Number([&] { Archive(ExtractDirectory(pattern), zipPath); });
}

void ActiveDelivery::Archive(const Text& folder, const Text& zipPath)
{
    std::vector<ZipSource> sources;
    for (const FolderEntry& entry : host_.files.List(folder))
        if (!entry.status.isFolder)
            sources.push_back({JoinPath(folder, entry.name), entry.name, {}});
    SavedFile zip(host_.files, zipPath);
    ProgressDisplay progress(ask_);
    WriteZip(
        host_.files, sources, zip, {.deflate = false},
        {.onEntry = {},
         .onProgress = [&](std::uint64_t done, std::uint64_t total) { progress.Show(done, total); },
         .processEvents = [&] { ask_.ProcessEvents(); }});
    zip.Close();
    zip.Commit();
}

Long ActiveDelivery::Method1(const Text& projectPath)
{
    return Number([&] { WriteSelfExtractProject(host_.files, projectPath, {}); });
}

Long ActiveDelivery::Method4(const Text& projectPath, Long attribute, Long value)
{
    return Method6(projectPath, attribute, NumberText(value));
}

Long ActiveDelivery::Method6(const Text& projectPath, Long attribute, const Text& value)
{
    return Number([&] {
        SelfExtractAttributes attributes = ReadSelfExtractProject(host_.files, projectPath);
        attributes.emplace_back(static_cast<std::uint32_t>(attribute), value);
        WriteSelfExtractProject(host_.files, projectPath, attributes);
    });
}

Long ActiveDelivery::Method10(const Text& projectPath)
{
    Long result = 0;
    const Long failed =
        Number([&] { result = Build(ReadSelfExtractProject(host_.files, projectPath)); });
    return failed != 0 ? failed : result;
}

/// Nothing where the icon of the project can't be opened, or is none.
std::optional<std::vector<ProgramResource>>
ActiveDelivery::Icon(const SelfExtractAttributes& attributes) const
{
    const Text path = IconPath(attributes);
    std::string bytes;
    if (path.empty())
        bytes = ReadWholeFile(host_.files, standardIcon_);
    else if (RunErrorNumber([&] { bytes = ReadWholeFile(host_.files, path); }) !=
             ErrorNumber::kNone)
        return std::nullopt;
    return IconResources(bytes);
}

Long ActiveDelivery::Build(const SelfExtractAttributes& attributes)
{
    const auto icon = Icon(attributes);
    if (!icon)
        return kNoIcon;
    std::vector<ProgramResource> resources = ResourcesOf(attributes);
    resources.insert(resources.end(), icon->begin(), icon->end());
    const auto program = WithResources(ReadWholeFile(host_.files, extractor_), resources);
    if (!program)
        throw RunError(ErrorNumber::kDeviceIo, extractor_);

    const std::vector<SolidSource> sources =
        PayloadSources(host_.files, AttributeOf(attributes, Attribute::kArchive));
    const Text path = AttributeOf(attributes, Attribute::kResult);
    SavedFile result(host_.files, path);
    LimitedOutput limited(result, maxSize_, path);
    ProgressDisplay progress(ask_);
    WriteSolid(CarriedProperties(attributes), sources, limited,
               {.program = std::as_bytes(std::span(*program)),
                .onProgress = [&](std::uint64_t done, std::uint64_t total) {
                    progress.Show(done, total);
                    ask_.ProcessEvents();
                }});
    result.Close();
    result.Commit();
    return 0;
}

} // namespace quillon
