#include "builder/create_form.h"

#include "helpers/windows_path.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr const char* kFirstFloppyDrive = "A:\\";

Medium MediumOfProject(const Project& project)
{
    for (const MediumChoice& choice : kMedia)
        if (Integer(choice.medium) == project.Media.TargetMedia)
            return choice.medium;
    return CreateForm().TargetMedia;
}

} // namespace

const MediumChoice& ChoiceOf(Medium medium)
{
    return *std::ranges::find(kMedia, medium, &MediumChoice::medium);
}

CreateForm OpenCreateForm(Project& project, OpenProjectState& state)
{
    const Flag wasDirty = state.ProjectIsDirty;
    CreateForm form;
    const int system = project.OperatingSystem.TargetOperatingSystem;
    if (system > 0 && system < int(kTargetOperatingSystems.size()))
        form.cbOS = project.OperatingSystem.TargetOperatingSystem;
    form.UseCompression = project.Compression.CompressFiles != kOff ? 1 : 0;
    form.KeepCompressedFilesOneAndOne = project.Compression.KeepCompressedFilesOneAndOne;
    form.SmallContainer = project.Compression.SmallContainer != kOff ? 1 : 0;

    ClickMedium(form, MediumOfProject(project), project, state);
    if (form.TargetMedia != Medium::Floppy)
        ChangeDestinationDir(form, project.LastDirectories.CreatationDestDir, project, state);
    state.ProjectIsDirty = wasDirty;
    return form;
}

void CloseCreateForm(const CreateForm& form, Project& project)
{
    project.LastDirectories.CreatationDestDir = form.tDestinationDir;
    project.Compression.CompressFiles = form.UseCompression == 1 ? kOn : kOff;
    project.Compression.KeepCompressedFilesOneAndOne = form.KeepCompressedFilesOneAndOne;
    project.Compression.SmallContainer = form.SmallContainer == 1 ? kOn : kOff;
    project.Media.TargetMedia = Integer(form.TargetMedia);
    project.OperatingSystem.TargetOperatingSystem = form.cbOS;
}

void ClickMedium(CreateForm& form, Medium medium, Project& project, OpenProjectState& state)
{
    const MediumChoice& choice = ChoiceOf(medium);
    form.TargetMedia = medium;
    form.tDestinationDir =
        choice.lastFolder ? project.LastDirectories.*choice.lastFolder : Text(kFirstFloppyDrive);
    form.isCmdSelectDirectoryEnabled = medium != Medium::Floppy;
    state.ProjectIsDirty = kOn;
}

void ChangeDestinationDir(CreateForm& form, const Text& folder, Project& project,
                          OpenProjectState& state)
{
    form.tDestinationDir = folder;
    state.ProjectIsDirty = kOn;
    if (const auto lastFolder = ChoiceOf(form.TargetMedia).lastFolder)
        project.LastDirectories.*lastFolder = folder;
}

Text CreateObstacle(const CreateForm& form)
{
    // The steps would cut a longer one and write somewhere else.
    if (CharacterCount(form.tDestinationDir) > kMaxPathLength)
        return "Destinationskatalogen är längre än " + NumberText(kMaxPathLength) + " tecken: '" +
               form.tDestinationDir + "'.";
    return {};
}

bool MakesSmallContainer(const CreateForm& form)
{
    return form.TargetMedia == Medium::CompressedCd && form.SmallContainer == 1 &&
           form.UseCompression == 1 && form.KeepCompressedFilesOneAndOne == 0;
}

Text ProgressText(std::uint64_t done, std::uint64_t total, char decimalSign)
{
    constexpr double kMegabyte = 1024.0 * 1024.0;
    const auto megabytes = [decimalSign](std::uint64_t bytes) {
        return FormatNumber(static_cast<double>(bytes) / kMegabyte, "0.0", decimalSign);
    };
    return megabytes(done) + " av " + megabytes(total) + " MB";
}

CompressOptionsForm OpenCompressOptions(const CreateForm& form)
{
    CompressOptionsForm options;
    options.cUseCompression = form.UseCompression;
    options.cSmallContainer = form.SmallContainer;
    options.isCd = form.TargetMedia == Medium::CompressedCd;
    ClickKeepCompressedFilesOneAndOne(options, form.KeepCompressedFilesOneAndOne);
    options.isCKeepCompressedFilesOneAndOneEnabled = options.isCd;
    if (form.TargetMedia == Medium::CdTree)
        options.isCUseCompressionEnabled = false;
    return options;
}

void ClickKeepCompressedFilesOneAndOne(CompressOptionsForm& options, Integer value)
{
    options.cKeepCompressedFilesOneAndOne = value;
    options.isCUseCompressionEnabled = value == 0;
    if (value != 0)
        options.cUseCompression = 0;
}

void StoreCompressOptions(const CompressOptionsForm& options, CreateForm& form)
{
    form.UseCompression = options.cUseCompression;
    form.KeepCompressedFilesOneAndOne = options.cKeepCompressedFilesOneAndOne;
    form.SmallContainer = options.cSmallContainer;
}

} // namespace quillon
