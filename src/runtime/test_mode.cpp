#include "runtime/test_mode.h"

#include "runtime/failure_reason.h"

namespace quillon {

namespace {

using section::DialogBoxData;
using section::DialogBoxes;

struct Page {
    Integer DialogBoxes::*isOn;
    Message name;
    // Where the project has its own words for it.
    Text DialogBoxData::*title = nullptr;
};

// clang-format off
constexpr Page kPagesInOrder[] = {
    {&DialogBoxes::WelcomeDlg,          Message::PageWelcome,          &DialogBoxData::WelcomeDlgTitle},
    {&DialogBoxes::GeneralInfoDlg,      Message::PageGeneralInfo,      &DialogBoxData::GeneralDlgTitle},
    {&DialogBoxes::GeneralInfoDlg2,     Message::PageGeneralInfo2,     &DialogBoxData::GeneralDlgTitle2},
    {&DialogBoxes::LicenseInfoDlg,      Message::PageLicenseInfo,      &DialogBoxData::LicenseTitle},
    {&DialogBoxes::LicenseInfoRtfDlg,   Message::PageLicenseInfoRtf,   &DialogBoxData::LicenseTitleRtf},
    {&DialogBoxes::PasswordDlg,         Message::PagePassword},
    {&DialogBoxes::NameCompanyDlg,      Message::PageNameCompany},
    {&DialogBoxes::DestinationDlg,      Message::PageDestination},
    {&DialogBoxes::DestinationDriveDlg, Message::PageDestinationDrive},
    {&DialogBoxes::ProgramGroupDlg,     Message::PageProgramGroup},
    {&DialogBoxes::StartInstallDlg,     Message::PageStartInstall,     &DialogBoxData::StartInstallDlgTitle},
    {&DialogBoxes::InstallCompletedDlg, Message::PageInstallCompleted, &DialogBoxData::InstallCompleteDlgTitle},
};
// clang-format on

Text TitleOf(const Page& page, const DialogBoxData& data, const LanguageTexts& texts)
{
    const Text own = page.title ? TrimBlanks(data.*page.title) : Text();
    return own.empty() ? texts[page.name] : own;
}

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

void LogWindow(const TestInput& input, const TestWindow& window, const LanguageTexts& texts)
{
    if (input.switches.logFile.empty())
        return;
    ActionLog log(input.host.files, input.host.machine, input.switches.logFile, texts);
    for (const Text& line : {window.title, window.note, window.heading})
        log.TextLine(line);
    for (const Text& line : window.lines)
        log.TextLine(line);
    log.Close();
}

} // namespace

TestWindow DescribePages(const LoadedPackage& package)
{
    const Project& project = package.setup.project;
    TestWindow window = Window(package, Message::TestTitle);
    for (const Page& page : kPagesInOrder)
        if (project.DialogBoxes.*page.isOn == 1)
            window.lines.push_back(NumberText(static_cast<std::int64_t>(window.lines.size()) + 1) +
                                   ". " + TitleOf(page, project.DialogBoxData, package.texts));
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
    return mode == TestMode::Test ? LoadPackage(files, folder)
                                  : LoadSetupInformation(files, folder);
}

ExitCode RunTest(const TestInput& input, const LoadedPackage& package)
{
    const LanguageTexts& texts = package.texts;
    const auto fail = [&](ExitCode code, const Text& text) {
        if (!input.switches.silent)
            input.ask.Critical(texts(TitleFor(*input.switches.testMode), ProjectNameOf(package)),
                               text);
        return code;
    };
    if (input.switches.badSwitch)
        return fail(ExitCode::BadSwitch, texts(Message::BadSwitch, *input.switches.badSwitch));
    if (package.fault)
        return fail(ExitCode::Failed, texts(Message::TestFiles, texts(*package.fault)));
    try {
        const TestWindow window = Describe(package, *input.switches.testMode);
        LogWindow(input, window, texts);
        if (!input.switches.silent)
            input.show(window);
        return ExitCode::Done;
    } catch (const RunError& error) {
        return fail(ExitCode::Failed, texts(Message::TestFiles, texts(ReasonOf(error))));
    }
}

} // namespace quillon
