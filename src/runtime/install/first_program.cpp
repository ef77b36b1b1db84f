#include "runtime/install/first_program.h"

#include "formats/package_files.h"
#include "helpers/drive_path.h"
#include "helpers/number_text.h"
#include "helpers/windows_name.h"
#include "helpers/windows_path.h"
#include "platform/registry_roots.h"
#include "platform/run_error.h"
#include "runtime/command_line/switches.h"
#include "runtime/journal/rollback.h"
#include "runtime/package/package_copy.h"
#include "runtime/texts/failure_reason.h"

namespace quillon {

namespace {

class FirstProgram {
public:
    explicit FirstProgram(const FirstProgramInput& input)
        : input_(input), program_(input.setup.project.RunAppSelfX),
          copy_(JoinPath(input.workFolder, kFirstProgram))
    {
    }

    std::optional<Text> Run();

private:
    void Copy() const;
    int Start() const;
    [[noreturn]] void Cancel() const { throw SetupFailure(ExitCode::Cancelled, {}); }
    std::optional<Text> FolderFromRegistry() const;

    const FirstProgramInput& input_;
    const section::RunAppSelfX& program_;
    const Text copy_;
};

// A value that the project leaves empty is no value of the program's.
bool IsCode(const Text& wanted, int code)
{
    return NumberText(LeadingNumber(wanted)) == wanted && LeadingNumber(wanted) == code;
}

std::optional<Text> FirstProgram::Run()
{
    const bool isVisible = program_.VisibleWin != kOff;
    if (program_.ProgramFilename.empty())
        return std::nullopt;
    if (isVisible && input_.silent) {
        input_.log.Skipped(input_.texts[Message::PartFirstProgram], {Message::SkipSilent});
        return std::nullopt;
    }
    Copy();
    int code = Start();
    // There is no page before it to go back to: the user leaves the setup, or begins again.
    while (IsCode(program_.ReturnValueBack, code) && !IsCode(program_.ReturnValueExit, code)) {
        const Text title =
            input_.texts(Message::Title, input_.setup.project.ProjectName.ProjectName);
        if (input_.ask.YesNo(title, input_.texts[Message::CancelQuestion], Ask::Stops::OnYes))
            Cancel();
        code = Start();
    }
    RunErrorNumber([&] { RemoveEvenReadOnly(input_.host.files, copy_); });
    if (IsCode(program_.ReturnValueExit, code))
        Cancel();
    return IsCode(program_.ReturnValueDD, code) ? FolderFromRegistry() : std::nullopt;
}

void FirstProgram::Copy() const
{
    const Text& name = program_.ProgramFilename;
    if (FaultOfName(name) != PathFault::None)
        throw DamagedPackage(input_.texts, {Message::PackageFileDamaged, kSetupInformationName});
    CopyFromPackage(input_.host.files, input_.packageFolder, name, copy_, input_.manifest,
                    input_.texts);
}

int FirstProgram::Start() const
{
    const Text& name = program_.ProgramFilename;
    input_.log.Line(Message::LogStarts, name);
    const int code = input_.target.RunProgram(
        {copy_, TrimBlanks(input_.variables.Expand(program_.Param)), program_.VisibleWin == kOff});
    input_.log.Line(Message::LogEndsWithCode, name, NumberText(code));
    return code;
}

std::optional<Text> FirstProgram::FolderFromRegistry() const
{
    const std::int64_t root = LeadingNumber(program_.DD_iHKEYIndex);
    const bool isRoot = root >= 0 && root < std::int64_t(kRegistryRoots.size());
    const auto data =
        isRoot ? input_.target.ReadValue({RegistryRootAt(std::size_t(root)), program_.DD_sSubKey},
                                         program_.DD_sValueName)
               : std::nullopt;
    const Text folder = RemoveLastBackslash(TrimBlanks(data ? TextOf(*data).value_or("") : Text()));
    if (IsAbsolutePath(folder + "\\") && FaultOfFolder(folder + "\\") == PathFault::None) {
        input_.log.Line(Message::LogNewMainFolder, folder);
        return folder;
    }
    input_.log.Skipped(input_.texts[Message::PartNewFolder], {Message::PackageBadPath, folder});
    return std::nullopt;
}

} // namespace

std::optional<Text> RunFirstProgram(const FirstProgramInput& input)
{
    return FirstProgram(input).Run();
}

} // namespace quillon
