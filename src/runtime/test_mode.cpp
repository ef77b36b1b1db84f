#include "runtime/test_mode.h"

#include "runtime/pages/page_chain.h"
#include "runtime/pages/page_order.h"
#include "runtime/script/script_run.h"
#include "runtime/texts/failure_reason.h"

namespace quillon {

namespace {

Text ProjectNameOf(const LoadedPackage& package)
{
    const Text name = TrimBlanks(package.setup.project.ProjectName.ProjectName);
    return name.empty() ? package.texts[Message::Unnamed] : name;
}

TestWindow Window(const LoadedPackage& package, Message title)
{
    const LanguageTexts& texts = package.texts;
    return {.title = texts(title, ProjectNameOf(package)),
            .note = texts[Message::TestNothing],
            .close = texts[Message::Close]};
}

Message TitleFor(TestMode mode)
{
    return mode == TestMode::Test ? Message::TestTitle : Message::PreviewTitle;
}

TestWindow Describe(const LoadedPackage& package, TestMode mode)
{
    return mode == TestMode::Test ? DescribePages(package) : DescribeScreen(package);
}

void LogWindow(ActionLog& log, const TestWindow& window)
{
    for (const Text& line : {window.title, window.note, window.heading})
        log.Line(Message::LogNote, line);
    for (const Text& line : window.lines)
        log.Line(Message::LogNote, line);
}

// Leads the author through the pages as the user of the setup, without an installation.
void LeadThroughPages(const TestInput& input, LoadedPackage& package)
{
    PageChain chain({input.host, input.target, input.ask, package.texts, package.setup,
                     package.rows, input.switches.packageFolder, input.switches.destination});
    if (chain.ShowPages(input.pages) == PageChain::End::Cancelled)
        return;
    input.ask.Inform(package.texts(Message::TestTitle, ProjectNameOf(package)),
                     package.texts[Message::TestNothing]);
    chain.ShowClosingPage(input.pages);
}

} // namespace

TestWindow DescribePages(const LoadedPackage& package)
{
    TestWindow window = Window(package, Message::TestTitle);
    for (const PageKind page : PagesOf(package.setup))
        window.lines.push_back(NumberText(static_cast<std::int64_t>(window.lines.size()) + 1) +
                               ". " + NameOfPage(package.setup, page, package.texts));
    window.heading =
        package.texts[window.lines.empty() ? Message::TestNoPages : Message::TestPages];
    return window;
}

TestWindow DescribeScreen(const LoadedPackage& package)
{
    const SetupInformation& setup = package.setup;
    const LanguageTexts& texts = package.texts;
    TestWindow window = Window(package, Message::PreviewTitle);
    window.heading = texts[Message::Screen];
    const auto add = [&](Message message, const Text& value) {
        if (!value.empty())
            window.lines.push_back(texts(message, value));
    };
    add(Message::ScreenTitle, setup.project.DesTitle.TitleText);
    add(Message::ScreenSubTitle, setup.project.DesSubTitle.SubTitleText);
    add(Message::ScreenSize, NumberText(setup.DesWidth) + " x " + NumberText(setup.DesHeight));
    add(Message::ScreenPicture, setup.project.DesBackground.PictureFilename);
    return window;
}

LoadedPackage LoadForTest(const FileSystem& files, const Text& folder, TestMode mode)
{
    if (mode == TestMode::Preview)
        return LoadSetupInformation(files, folder);
    LoadedPackage package = LoadPackage(files, folder);
    // A message for the author; the user of a package never sees it.
    if (!package.fault)
        package.fault = FaultOfScripts(package.setup, package.texts);
    return package;
}

ExitCode RunTest(const TestInput& input, LoadedPackage& package)
{
    const LanguageTexts& texts = package.texts;
    ActionLog log;
    const auto fail = [&](ExitCode code, const Text& text) {
        log.Line(Message::LogEndsBecause, NumberText(int(code)), text);
        log.End(code, RunEnd::Stopped, text);
        log.Close();
        if (!input.switches.silent)
            input.ask.Critical(texts(TitleFor(*input.switches.testMode), ProjectNameOf(package)),
                               text);
        return code;
    };
    try {
        OpenLogs(log, input.host.files, input.host.machine,
                 LogFilesOf(input.switches, input.host.files, input.host.machine, "QNSETUP"),
                 texts);
        if (input.switches.badSwitch)
            return fail(ExitCode::BadSwitch, texts(Message::BadSwitch, *input.switches.badSwitch));
        if (package.fault)
            return fail(ExitCode::Failed, texts(Message::TestFiles, texts(*package.fault)));
        const TestWindow window = Describe(package, *input.switches.testMode);
        LogWindow(log, window);
        if (!input.switches.silent && input.switches.testMode == TestMode::Test)
            LeadThroughPages(input, package);
        else if (!input.switches.silent)
            input.show(window);
        log.End(ExitCode::Done, RunEnd::Done);
        log.Close();
        return ExitCode::Done;
    } catch (const RunError& error) {
        return fail(ExitCode::Failed, texts(Message::TestFiles, texts(ReasonOf(error))));
    }
}

} // namespace quillon
