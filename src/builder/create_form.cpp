#include "builder/create_form.h"

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

    ClickMedium(form, MediumOfProject(project), project, state);
    if (form.TargetMedia != Medium::Floppy)
        ChangeDestinationDir(form, project.LastDirectories.CreatationDestDir, project);
    state.ProjectIsDirty = wasDirty;
    return form;
}

void CloseCreateForm(const CreateForm& form, Project& project)
{
    project.LastDirectories.CreatationDestDir = form.tDestinationDir;
    project.Compression.CompressFiles = form.UseCompression == 1 ? kOn : kOff;
    project.Compression.KeepCompressedFilesOneAndOne = form.KeepCompressedFilesOneAndOne;
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

void ChangeDestinationDir(CreateForm& form, const Text& folder, Project& project)
{
    form.tDestinationDir = folder;
    if (const auto lastFolder = ChoiceOf(form.TargetMedia).lastFolder)
        project.LastDirectories.*lastFolder = folder;
}

CompressOptionsForm OpenCompressOptions(const CreateForm& form)
{
    CompressOptionsForm options;
    options.cUseCompression = form.UseCompression;
    ClickKeepCompressedFilesOneAndOne(options, form.KeepCompressedFilesOneAndOne);
    options.isCKeepCompressedFilesOneAndOneEnabled = form.TargetMedia == Medium::CompressedCd;
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
}

} // namespace quillon
