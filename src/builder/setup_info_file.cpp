#include "builder/setup_info_file.h"

#include "builder/design_objects.h"
#include "design/rtf_box_file.h"
#include "filelist/adding/file_version.h"
#include "filelist/view/totals.h"
#include "formats/scramble.h"
#include "formats/section_document.h"
#include "formats/setup_information_table.h"
#include "helpers/flag_text.h"
#include "helpers/line_breaks.h"
#include "helpers/product.h"
#include "helpers/windows_path.h"
#include "platform/whole_file.h"
#include "project/components.h"
#include "project/program_group.h"

namespace quillon {

namespace {

// A page of the dialog chain and a component are check boxes: ticked is 1, and nothing else is.
constexpr std::int64_t kTicked = 1;

Text DesignFileReference(const Text& path, SetupInfoMode mode)
{
    return mode == SetupInfoMode::Create ? ExtractFilename(path) : path;
}

Text DialogBitmapReference(const Text& path, SetupInfoMode mode)
{
    return IsDefaultDialogBitmap(path) ? Text() : DesignFileReference(path, mode);
}

Text RtfReference(const Text& name, const SetupInfoInput& in, SetupInfoMode mode)
{
    const bool asItStands = name.empty() || mode == SetupInfoMode::Create;
    if (asItStands)
        return name;
    return PathIn(in.host.files, RTFboxFolders(in.options.ToolFolder, in.options.OwnFolder), name);
}

Text DocumentReference(const Text& name)
{
    const bool asItStands = name.empty() || ContainsText(name, "\\");
    return asItStands ? name : "%DESTDIR\\" + name;
}

Text WithoutFirstBackslash(const Text& text)
{
    return text.starts_with('\\') ? text.substr(1) : text;
}

Text PixelText(std::int64_t twips, int twipsPerPixel)
{
    return NumberText(RoundToEven(double(twips) / twipsPerPixel));
}

// How a value of the project is on file; the reader's counterpart is beside the tables.
class ValueTexts {
public:
    ValueTexts(const SetupInfoInput& in, SetupInfoMode mode) : in_(in), mode_(mode) {}

    Text TextValue(InfForm form, const Text& value) const
    {
        switch (form) {
        case InfForm::AsBool:
            return FlagText(IsTrueText(value));
        case InfForm::AsMulti:
            return EncodeLineBreaks(value);
        case InfForm::AsLine:
            return FirstLineOnly(value);
        case InfForm::AsFile:
            return DesignFileReference(value, mode_);
        case InfForm::AsNameAlone:
            return ExtractFilename(value);
        case InfForm::AsDlgBitmap:
            return DialogBitmapReference(value, mode_);
        case InfForm::AsRtfFile:
            return RtfReference(value, in_, mode_);
        case InfForm::AsDocument:
            return DocumentReference(value);
        case InfForm::AsNoFirstBackslash:
            return WithoutFirstBackslash(value);
        case InfForm::AsScramble:
            return Scrambled(value);
        default:
            return value;
        }
    }

    Text NumberValue(InfForm form, std::int64_t value) const
    {
        switch (form) {
        case InfForm::AsBool:
            return FlagText(value != kOff);
        case InfForm::AsCheckBox:
            return FlagText(value == kTicked);
        case InfForm::AsPxX:
            return PixelText(value, in_.surface.screen.TPPX);
        case InfForm::AsPxY:
            return PixelText(value, in_.surface.screen.TPPY);
        case InfForm::AsFloppies:
            return kFloppiesPlaceholder;
        default:
            return NumberText(value);
        }
    }

private:
    Text Scrambled(const Text& value) const
    {
        Machine& machine = in_.host.machine;
        const LocalTime now = machine.Now();
        return ScrambleString(value, {now.second, now.minute,
                                      [&](std::uint32_t below) { return machine.Random(below); }});
    }

    const SetupInfoInput& in_;
    SetupInfoMode mode_;
};

class SectionWriter {
public:
    SectionWriter(AnsiTextFile& file, ValueTexts values) : file_(file), values_(values) {}

    template <class... Parts>
    void operator()(const char* name, const Parts&... parts)
    {
        if (!(IsWritten(parts) || ...))
            return;
        Header(name);
        (Write(parts), ...);
        file_.Line();
    }

    void FreeText(const char* name, const Text& text)
    {
        Header(name);
        file_.Line(text);
        EndList();
    }

    // An empty text gives no line at all here, and a CR LF at the very end no further line.
    void MarkedLines(const char* name, const Text& text)
    {
        Header(name);
        std::string_view lines = text;
        if (lines.ends_with(kLineBreak))
            lines.remove_suffix(kLineBreak.size());
        if (!text.empty())
            for (const Text& line : SplitLines(lines))
                file_.Line(kIniListMark + line);
        EndList();
    }

private:
    template <class Part>
    static bool IsWritten(const Part& part)
    {
        if constexpr (requires { part.isWritten; })
            return part.isWritten;
        return true;
    }

    void Header(const Text& name) { file_.Line("[" + name + "]"); }

    void EndList()
    {
        file_.Line(kEndOfList);
        file_.Line();
    }

    void Setting(const Text& key, const Text& value) { file_.Line(key + " = " + value); }

    template <class Record, std::size_t N>
    void Write(const InfKeys<Record, N>& part)
    {
        if (!part.isWritten)
            return;
        for (const InfKey<Record>& key : part.keys)
            std::visit(
                [&](auto field) {
                    Setting(key.name + part.suffix, ValueText(key.form, part.record.*field));
                },
                key.field);
    }

    Text ValueText(InfForm form, const Text& value) { return values_.TextValue(form, value); }
    Text ValueText(InfForm form, Long value) { return values_.NumberValue(form, value); }

    void Write(const InfUseFlag& part) { Setting(part.name, FlagText(!part.text.empty())); }

    void Write(const InfAnimPictures& part)
    {
        if (part.record.NrAnimPictures > int(part.record.P.size()))
            throw RunError(ErrorNumber::kSubscriptOutOfRange);
        int n = 0;
        for (const Text& picture : AnimationPictures(part.record))
            Setting("P" + NumberText(++n), values_.TextValue(InfForm::AsFile, picture));
    }

    void Write(const InfComponents& part)
    {
        for (std::size_t n = 1; part.isWritten && n <= part.components.size(); ++n) {
            section::FileComponent& component = part.components[n - 1];
            Write(NumberedKeys(inf::kFileComponent, component, n));
            if (component.CompAdvOnlyUpdate == kTicked)
                Write(NumberedKeys(inf::kFileComponentUpdate, component, n));
        }
    }

    AnsiTextFile& file_;
    ValueTexts values_;
};

// What the file holds beside the project's own fields.
SetupInformation InformationBesideProject(const SetupInfoInput& in)
{
    const Project& project = in.project;
    SetupInformation info;
    const Text& versionFile = project.Version.XProductVersionFName;
    if (!versionFile.empty())
        info.XProductVersion = ReplaceAll(FileVersionText(in.host.files, versionFile), ",", ".");
    info.PlaceCompressedFilesInFolderSetupFiles = in.options.PlaceCompressedFilesInFolderSetupFiles;
    info.CreateFolderStructureInFolderSetupFiles =
        in.options.CreateFolderStructureInFolderSetupFiles;
    info.DesWidth = in.surface.width;
    info.DesHeight = in.surface.height;
    info.UseComponents = IsAnyComponentInUse(project) ? kOn : kOff;
    info.Files = in.FilesInList;
    info.TotalSize =
        GetTotalSizeOfFilesX(project.Files, project.OperatingSystem.TargetOperatingSystem,
                             in.host.machine.DecimalSign(), in.ask);
    return info;
}

void WriteHeader(AnsiTextFile& file, SetupInfoMode mode)
{
    for (const Text& line : FileHeaderLines(kSetupInformationType))
        file.Line(line);
    if (mode == SetupInfoMode::Preview)
        file.Line("FileSubType = " + Text(kPreviewSubType));
    file.Line();
}

} // namespace

int WriteSetupInfoFile(const Text& path, SetupInfoInput& in, SetupInfoMode mode)
{
    const auto write = [&] {
        AnsiTextFile file(in.host.files, path);
        WriteHeader(file, mode);
        FillEmptyProgramGroup(in.project);
        SetupInformation info = InformationBesideProject(in);
        SectionWriter sections(file, ValueTexts(in, mode));
        EachInfSection(in.project, info, sections);
        file.Line(kEndOfFile);
        file.Line();
        file.Close();
    };
    return RunErrorNumber(write, in.failure);
}

} // namespace quillon
