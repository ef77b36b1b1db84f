#include "builder/create_form.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr const char* kFirstFloppyDrive = "A:\\";

const Medium* FindMedium(Integer targetMedia)
{
    const auto medium = std::ranges::find(kMedia, targetMedia, &Medium::TargetMedia);
    return medium == kMedia.end() ? nullptr : &*medium;
}

} // namespace

CreateForm OpenCreateForm(Project& project, OpenProjectState& state)
{
    const Flag wasDirty = state.ProjectIsDirty;
    CreateForm form;
    const int system = project.OperatingSystem.TargetOperatingSystem;
    if (system > 0 && system < int(kTargetOperatingSystems.size()))
        form.cbOS = project.OperatingSystem.TargetOperatingSystem;
    form.UseCompression = project.Compression.CompressFiles != kOff ? 1 : 0;
    form.KeepCompressedFilesOneAndOne = project.Compression.KeepCompressedFilesOneAndOne;

    const Integer medium = project.Media.TargetMedia;
    ClickMedium(form, FindMedium(medium) ? medium : form.TargetMedia, project, state);
    if (medium != kMediaFloppy)
        ChangeDestinationDir(form, project.LastDirectories.CreatationDestDir, project);
    state.ProjectIsDirty = wasDirty;
    return form;
}

void CloseCreateForm(const CreateForm& form, Project& project)
{
    project.LastDirectories.CreatationDestDir = form.tDestinationDir;
    project.Compression.CompressFiles = form.UseCompression == 1 ? kOn : kOff;
    project.Compression.KeepCompressedFilesOneAndOne = form.KeepCompressedFilesOneAndOne;
    project.Media.TargetMedia = form.TargetMedia;
    project.OperatingSystem.TargetOperatingSystem = form.cbOS;
}

void ClickMedium(CreateForm& form, Integer targetMedia, Project& project, OpenProjectState& state)
{
    const Medium& medium = *FindMedium(targetMedia);
    form.TargetMedia = targetMedia;
    form.tDestinationDir =
        medium.lastFolder ? project.LastDirectories.*medium.lastFolder : Text(kFirstFloppyDrive);
    form.isCmdSelectDirectoryEnabled = targetMedia != kMediaFloppy;
    state.ProjectIsDirty = kOn;
}

void ChangeDestinationDir(CreateForm& form, const Text& folder, Project& project)
{
    form.tDestinationDir = folder;
    const Medium& medium = *FindMedium(form.TargetMedia);
    if (medium.lastFolder)
        project.LastDirectories.*medium.lastFolder = folder;
}

CompressOptionsForm OpenCompressOptions(const CreateForm& form)
{
    CompressOptionsForm options;
    options.cUseCompression = form.UseCompression;
    ClickKeepCompressedFilesOneAndOne(options, form.KeepCompressedFilesOneAndOne);
    options.isCKeepCompressedFilesOneAndOneEnabled = form.TargetMedia == kMediaCdCompressed;
    if (form.TargetMedia == kMediaCdTree)
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
