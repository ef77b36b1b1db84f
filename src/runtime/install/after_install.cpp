#include "runtime/install/after_install.h"

#include "platform/run_error.h"
#include "platform/whole_file.h"
#include "runtime/texts/failure_reason.h"

namespace quillon {

namespace {

// More than any document has.
constexpr std::uint64_t kMaxDocumentSize = 16 * 1024 * 1024;

void Try(const AfterInstallInput& input, const Reason& part, const Text& path,
         const std::function<void()>& start)
{
    const Text what = input.texts(part);
    if (input.silent) {
        input.log.Skipped(what, {Message::SkipSilent});
        return;
    }
    try {
        start();
        input.log.Line(Message::LogStarts, path);
    } catch (const RunError& error) {
        input.log.Skipped(what, ReasonOf(error));
    }
}

} // namespace

void StartProgramsAfter(const AfterInstallInput& input)
{
    const section::RunAppAfter& programs = input.setup.project.RunAppAfter;
    const auto start = [&](const char* number, const Text& file, const Text& parameters) {
        if (file.empty())
            return;
        const Text path = input.variables.ExpandPath(file);
        Try(input, {Message::PartProgram, number}, path,
            [&] { input.start(path, TrimBlanks(input.variables.Expand(parameters))); });
    };
    start("1", programs.AppFileName1, programs.AppParam1);
    start("2", programs.AppFileName2, programs.AppParam2);
}

void ShowDocumentAfter(const AfterInstallInput& input,
                       const std::function<void(const std::string& rtf)>& showRtf)
{
    const section::ShowDocAfter& document = input.setup.project.ShowDocAfter;
    if (document.DocFileName.empty() || !input.showsDocument)
        return;
    const Text path = input.variables.ExpandPath(document.DocFileName);
    const FileSystem& files = input.host.files;
    Try(input, {Message::PartDocument}, path, [&] {
        if (files.Status(path).size > kMaxDocumentSize || document.UseInternalRTFBox == kOff ||
            !ContainsText(UpperCase(path), ".RTF"))
            input.start(path, {});
        else
            showRtf(ReadWholeFile(files, path));
    });
}

} // namespace quillon
