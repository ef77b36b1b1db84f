#include "runtime/script/script_run.h"

#include "helpers/number_text.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "runtime/command_line/switches.h"
#include "runtime/ini_files/ini_changes.h"
#include "runtime/journal/rollback.h"
#include "runtime/package/package_copy.h"
#include "runtime/registry/registry_changes.h"
#include "runtime/script/script_paths.h"
#include "runtime/texts/failure_reason.h"

namespace quillon {

namespace {

// A command that can't be done.
class ScriptStop : public std::exception {
public:
    explicit ScriptStop(Reason reason) : reason_(std::move(reason)) {}
    const Reason& Why() const { return reason_; }

private:
    Reason reason_;
};

// A program is started by the extension of its name.
Text ScriptProgramFor(const Text& name)
{
    for (const char* copy : kScriptPrograms)
        if (UpperCase(name).ends_with(std::string_view(copy).substr(kScriptProgramStem.size())))
            return copy;
    return kScriptPrograms[0];
}

Reason ScriptReason(const LanguageTexts& texts, Message part, int line, const Text& reason)
{
    return {Message::PackageScript, texts[part], NumberText(line) + ": " + reason};
}

class ScriptRun {
public:
    explicit ScriptRun(const ScriptWork& work)
        : work_(work), input_(work.input), files_(work.input.host.files),
          variables_(work.input.variables)
    {
        variables_.Set(kScriptExitCode, "0");
    }

    void Run(const Script& script);
    int Line() const { return line_; }

private:
    std::size_t Do(const Script& script, std::size_t at);
    void Do(const ScriptCommand& command);
    bool Holds(const ScriptCommand& command);
    bool IsInRegistry(const Text& place) const;
    void Tell(const Text& text);
    void Copy(const Text& from, const Text& to);
    void Delete(const Text& path);
    void Rename(const Text& from, const Text& to);
    void Put(const Text& from, const Text& to, InstallTransaction::Recorded recorded);
    void WriteIni(const std::vector<Text>& arguments);
    void WriteRegistry(const Text& line);
    void StartAndWait(const ScriptCommand& command);
    [[noreturn]] void Exit(const std::vector<Text>& arguments) const;
    Text ProgramToStart(const Text& program) const;
    Text Title() const
    {
        return input_.texts(Message::Title, input_.setup.project.ProjectName.ProjectName);
    }
    Text PathIn(const Text& argument) const;
    Text Expanded(const std::vector<Text>& arguments, std::size_t at) const
    {
        return at < arguments.size() ? variables_.Expand(arguments[at]) : Text();
    }

    const ScriptWork& work_;
    const InstallInput& input_;
    FileSystem& files_;
    SetupVariables variables_; // with those of the script
    int line_ = 0;
};

void ScriptRun::Run(const Script& script)
{
    for (std::size_t at = 0; at < script.commands.size();) {
        line_ = script.commands[at].line;
        input_.ask.ProcessEvents();
        at = Do(script, at);
    }
}

// The place of the next command.
std::size_t ScriptRun::Do(const Script& script, std::size_t at)
{
    const ScriptCommand& command = script.commands[at];
    switch (command.word) {
    case ScriptWord::If:
        return Holds(command) != command.isNegated ? at + 1 : command.next;
    case ScriptWord::Else:
        return command.next;
    case ScriptWord::Exit:
        if (!command.arguments.empty())
            Exit(command.arguments);
        input_.log.Line(Message::LogScriptEnds, NumberText(command.line));
        return script.commands.size();
    default:
        Do(command);
        return at + 1;
    }
}

void ScriptRun::Do(const ScriptCommand& command)
{
    const std::vector<Text>& arguments = command.arguments;
    switch (command.word) {
    case ScriptWord::Message:
        return Tell(Expanded(arguments, 0));
    case ScriptWord::Log:
        return input_.log.Line(Message::LogNote, Expanded(arguments, 0));
    case ScriptWord::Copy:
        return Copy(PathIn(arguments[0]), PathIn(arguments[1]));
    case ScriptWord::Delete:
        return Delete(PathIn(arguments[0]));
    case ScriptWord::Rename:
        return Rename(PathIn(arguments[0]), PathIn(arguments[1]));
    case ScriptWord::MakeFolder:
        return work_.transaction.MakeFolder(PathIn(arguments[0]));
    case ScriptWord::RemoveFolder:
        return work_.transaction.RemoveFolderAtEnd(PathIn(arguments[0]));
    case ScriptWord::Ini:
        return WriteIni(arguments);
    case ScriptWord::Registry:
        return WriteRegistry(arguments[0]);
    case ScriptWord::Run:
    case ScriptWord::RunHidden:
        return StartAndWait(command);
    case ScriptWord::Set:
        return variables_.Set(arguments[0], Expanded(arguments, 1));
    case ScriptWord::Exit:
    case ScriptWord::If:
    case ScriptWord::Else:
    case ScriptWord::End:
        return;
    }
}

bool ScriptRun::Holds(const ScriptCommand& command)
{
    const std::vector<Text>& arguments = command.arguments;
    switch (command.test) {
    case ScriptTest::File:
        return files_.FileExists(PathIn(arguments[0]));
    case ScriptTest::Folder:
        return files_.DirExists(PathIn(arguments[0]));
    case ScriptTest::Registry:
        return IsInRegistry(Expanded(arguments, 0));
    case ScriptTest::Yes:
        return input_.ask.YesNo(Title(), Expanded(arguments, 0), Ask::Stops::OnNo);
    case ScriptTest::Equal:
    case ScriptTest::Different:
        break;
    }
    const bool isEqual = EqualIgnoreCase(Expanded(arguments, 0), Expanded(arguments, 1));
    return isEqual == (command.test == ScriptTest::Equal);
}

bool ScriptRun::IsInRegistry(const Text& place) const
{
    const RegistryLine line = ReadRegistryPlace(place);
    if (line.reason)
        throw ScriptStop({*line.reason});
    return line.hasValue ? input_.target.ReadValue(line.key, line.valueName).has_value()
                         : input_.target.KeyExists(line.key);
}

void ScriptRun::Tell(const Text& text)
{
    input_.log.Line(Message::LogScriptSays, text);
    input_.ask.Inform(Title(), text);
}

// The variables are expanded here, so that what they bring in is tested too.
Text ScriptRun::PathIn(const Text& argument) const
{
    const Text path = variables_.ExpandPath(ReplaceAll(argument, "/", "\\"));
    if (const auto fault = FaultOfScriptPath(path, variables_, input_.target))
        throw ScriptStop(*fault);
    return path;
}

// Copied to a folder, the file keeps its name. A file that it replaces and that is not the
// product's own is kept as a backup, which is put back when the product is uninstalled.
void ScriptRun::Copy(const Text& from, const Text& to)
{
    const Text place = files_.DirExists(to) ? JoinPath(to, ExtractFilename(from)) : to;
    const bool isOthers = files_.FileExists(place) && !work_.journal.Has<record::File>(place) &&
                          !work_.journal.Has<record::Replaced>(place);
    if (isOthers)
        work_.transaction.KeepBackup(place);
    Put(from, place, InstallTransaction::Recorded::Yes);
    input_.log.Line(Message::LogCopies, place);
}

void ScriptRun::Put(const Text& from, const Text& to, InstallTransaction::Recorded recorded)
{
    if (!files_.FileExists(from))
        throw RunError(ErrorNumber::kFileNotFound, from);
    work_.transaction.MakeFolder(ExtractDirectory(to));
    const Text staged = work_.transaction.StagingPath(to);
    files_.CopyContent(from, staged);
    work_.transaction.PutFile({staged, to, files_.FileExists(to), recorded});
}

void ScriptRun::Delete(const Text& path)
{
    if (!files_.FileExists(path)) {
        input_.log.Skipped(path, {Message::SkipNoFile});
        return;
    }
    work_.transaction.RemoveFile(path);
    input_.log.Line(Message::LogRemoves, path);
}

// As a copy and a removal, each of which can be undone any number of times. A file of the user's
// stays the user's under its new name.
void ScriptRun::Rename(const Text& from, const Text& to)
{
    if (files_.FileExists(to) || files_.DirExists(to))
        throw ScriptStop({Message::PackageAlreadyThere, to});
    Put(from, to,
        work_.journal.Has<record::File>(from) ? InstallTransaction::Recorded::Yes
                                              : InstallTransaction::Recorded::No);
    work_.transaction.RemoveFile(from);
    input_.log.Line(Message::LogRenames, from, to);
}

void ScriptRun::WriteIni(const std::vector<Text>& arguments)
{
    WriteIniFiles({files_, work_.transaction, work_.journal, input_.log},
                  {{PathIn(arguments[0]), Expanded(arguments, 1), Expanded(arguments, 2),
                    Expanded(arguments, 3)}});
}

void ScriptRun::WriteRegistry(const Text& text)
{
    RegistryLine line = ReadRegistryLine(text);
    line.text = variables_.Expand(line.text);
    line.key.subKey = PlainSubKey(variables_.Expand(line.key.subKey));
    line.valueName = variables_.Expand(line.valueName);
    if (line.key.root == RegistryRoot::DynData)
        throw ScriptStop({Message::SkipFixedRoot, RootName(RegistryRoot::DynData)});
    if (RemovesSystemKey(line))
        throw ScriptStop({Message::SkipSystemKey});
    ApplyRegistryLine({work_.transaction, work_.journal, input_.log}, line);
}

// Others may have put programs and libraries beside the package: of that folder only the package's
// own programs are started, and from a copy that others can't replace.
Text ScriptRun::ProgramToStart(const Text& program) const
{
    const Text folder = variables_.Value(NameOf(VariableMeaning::SetupFolder)) + "\\";
    if (!LowerCase(program).starts_with(LowerCase(folder)))
        return program;
    const Text name = program.substr(folder.size());
    if (!input_.manifest.Names(name) || !files_.FileExists(program))
        throw ScriptStop({Message::PackageNotListed, program});
    const Text copy = JoinPath(input_.helpersFolder, ScriptProgramFor(name));
    CopyFromPackage(files_, folder, name, copy, input_.manifest, input_.texts);
    return copy;
}

void ScriptRun::StartAndWait(const ScriptCommand& command)
{
    const Text program = PathIn(command.arguments[0]);
    const Text started = ProgramToStart(program);
    if (!files_.FileExists(started))
        throw RunError(ErrorNumber::kFileNotFound, started);
    input_.log.Line(Message::LogStarts, program);
    const bool isHidden = command.word == ScriptWord::RunHidden || input_.silent;
    const int code = input_.target.RunProgram({started, Expanded(command.arguments, 1), isHidden});
    if (started != program)
        RunErrorNumber([&] { RemoveEvenReadOnly(files_, started); });
    variables_.Set(kScriptExitCode, NumberText(code));
    input_.log.Line(Message::LogEndsWithCode, program, NumberText(code));
}

void ScriptRun::Exit(const std::vector<Text>& arguments) const
{
    throw SetupFailure(ExitCode(LeadingNumber(arguments[0])), Expanded(arguments, 1));
}

} // namespace

void RunScript(const ScriptWork& work, const Script& script, Message part)
{
    if (script.commands.empty())
        return;
    const LanguageTexts& texts = work.input.texts;
    work.input.log.Line(Message::LogRunsScript, texts[part]);
    work.input.ask.AddStatusLine(texts[Message::Script]);
    ScriptRun run(work);
    const auto fail = [&](const Text& reason) {
        throw SetupFailure(
            ExitCode::Failed,
            texts(Message::Failed, texts(ScriptReason(texts, part, run.Line(), reason))));
    };
    try {
        run.Run(script);
    } catch (const ScriptStop& stop) {
        fail(texts(stop.Why()));
    } catch (const RunError& error) {
        if (error.Number() == ErrorNumber::kDiskFull || error.Number() == ErrorNumber::kFileInUse)
            throw;
        fail(texts(ReasonOf(error)));
    }
}

std::optional<Reason> FaultOfScripts(const SetupInformation& setup, const LanguageTexts& texts)
{
    const section::Lists& lists = setup.project.Lists;
    const auto faultOf = [&](const Text& text, Message part) -> std::optional<Reason> {
        const Script script = ReadScript(text);
        if (!script.fault)
            return std::nullopt;
        return ScriptReason(texts, part, script.fault->line, texts(script.fault->reason));
    };
    const auto before = faultOf(lists.RunScriptBefore, Message::PartScriptBefore);
    return before ? before : faultOf(lists.RunScriptAfter, Message::PartScriptAfter);
}

} // namespace quillon
