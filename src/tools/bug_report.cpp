#include "tools/bug_report.h"

#include "helpers/ansi_text.h"
#include "helpers/product.h"
#include "helpers/utf8.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"
#include "project/project_file.h"
#include "project/project_title.h"

#include <vector>

namespace quillon {

namespace {

constexpr const char* kWhere[] = {"I utvecklingsmiljön", "Vid installation",
                                  "Efter en installation", "I annat sammanhang"};
constexpr const char* kWhichComputer[] = {"På denna dator", "På annan dator", "Både och"};
constexpr const char* kHowManyComputers[] = {"På endast en dator", "På vissa datorer",
                                             "På alla testade datorer"};
constexpr const char* kWhen[] = {"Under initieringen", "Precis innan filkopieringen",
                                 "Under filkopieringen", "I slutfasen", "Efter installationen"};
constexpr const char* kMedia[] = {"Diskett", "CD (komprimerat)", "CD (färdigt träd)", "Internet"};
constexpr const char* kSinceWhen[] = {"Alltid existerat", "Uppkommit med uppdatering", "Vet inte"};
constexpr const char* kYesNo[] = {"Ja", "Nej"};
constexpr const char* kProjects[] = {"Med alla projekt", "Med vissa projekt",
                                     "Hittils bara med ett projekt"};
constexpr const char* kLanguages[] = {
    "Visual Basic",       "Visual C++",        "Visual Basic & Visual C++",
    "MS Access",          "MS Excel",          "MS Word",
    "Borland Delphi",     "Borland C++",       "Macromedia Director",
    "Annat programspråk", "Inget programspråk"};
constexpr const char* kVirusTest[] = {"Ja - inga virus funna", "Ja - ett virus hittades", "Nej"};

constexpr int kPageOfSystems = 2;
constexpr std::size_t kRuleLength = 111;
constexpr std::size_t kFirstLineOfDiagnosis = 6;
constexpr std::size_t kSecondLineOfDiagnosis = 8;

} // namespace

// clang-format off
const std::array<BugQuestion, kBugQuestionCount> kBugQuestions = {{
    {2, "Inträffar felet i själva utvecklingsmiljön (editorn) eller i samband med en installation?", "ComboWizBug1", kWhere},
    {2, "Inträffar felet på denna dator du utvecklar i eller på en annan dator?", "ComboWizBug2", kWhichComputer},
    {2, "Ifall du testat på flera datorer, har felet uppstått på endast en dator eller på flera datorer?", "ComboWizBug3", kHowManyComputers},
    {3, "Om felet inträffar i samband med en installation, ungefär när inträffar det?", "ComboWizBug1", kWhen},
    {3, "Vilken typ av målmedium har du valt för installationen (diskett, CD eller Internet)?", "ComboWizBug2", kMedia},
    {3, "Har felet uppstått i samband med en uppdatering av Quillon eller har det alltid existerat?", "ComboWizBug3", kSinceWhen},
    {3, "Visas en dialogruta med ett felmeddelande när felet uppstår?", "ComboWizBug4", kYesNo},
    {3, "Om en felruta visas i samband med felet, vad står det för felmeddelande?", "tErrorMsg", {}},
    {4, "Inträffar felet med alla installationsprojekt du skapar eller bara med vissa projekt?", "ComboWizBug1", kProjects},
    {4, "Vilket programspråk är programmet/dokumentet du installerar primärt utvecklat i?", "ComboWizBug2", kLanguages},
    {4, "Har du kört ett virus-test på din dator med ett färskt antivirus-program på sistone?", "ComboWizBug3", kVirusTest},
}};

const std::array<BugSystem, kBugSystemCount> kBugSystems = {{
    {"cWin95",   "Windows 95",   "'Win 95'  "},
    {"cWin98",   "Windows 98",   "'Win 98'  "},
    {"cWinME",   "Windows ME",   "'Win ME'  "},
    {"cWinNT",   "Windows NT",   "'Win NT'  "},
    {"cWin2000", "Windows 2000", "'Win 2000'  "},
    {"cWinXP",   "Windows XP",   "'Win XP'  "},
}};
// clang-format on

namespace {

std::vector<Text> LinesOfDiagnosis(const FileSystem& files, const Text& path)
{
    const Text text = AnsiText::FromBytes(ReadWholeFile(files, path));
    // The program may run on a system whose lines end in a line feed alone.
    std::vector<Text> lines = SplitLines(WithWindowsLineEnds(text));
    if (lines.back().empty())
        lines.pop_back();
    if (lines.size() < kSecondLineOfDiagnosis)
        throw RunError(ErrorNumber::kPastEndOfFile, path);
    return lines;
}

/// The copy's name. A project that was opened from the folder of reports is not overwritten.
Text AttachedName(const OpenProjectState& state, const Text& ownFolder)
{
    const Text title = ProjectTitle(state.ProjectFileName);
    const bool isOpenProject =
        EqualIgnoreCase(JoinPath(BugReportFolder(ownFolder), title), state.ProjectFileName);
    return isOpenProject ? "kopia-" + title : title;
}

Text SystemsText(const BugReportAnswers& answers)
{
    Text text;
    for (std::size_t i = 0; i < kBugSystemCount; ++i)
        if (answers.systems[i])
            text += kBugSystems[i].token;
    return text;
}

class ReportWriter {
public:
    void Line(const Text& text = {}) { text_ += text + Text(kLineBreak); }
    void Rule(char sign = '-') { Line(Text(kRuleLength, sign)); }

    void Heading(const Text& text)
    {
        Line(text);
        Line(Text(CharacterCount(text), '-'));
    }

    void Answer(const Text& question, const Text& answer)
    {
        Line("Fråga: " + question);
        Line("Svar:   " + answer);
        Line();
    }

    Text Take() { return std::move(text_); }

private:
    Text text_;
};

void WriteAnswers(ReportWriter& report, const BugReportAnswers& answers)
{
    for (std::size_t i = 0; i < kBugQuestionCount; ++i) {
        report.Answer(kBugQuestions[i].caption, answers.answers[i] + ".");
        const bool isLastOfItsPage =
            i + 1 == kBugQuestionCount || kBugQuestions[i + 1].page != kBugQuestions[i].page;
        if (kBugQuestions[i].page == kPageOfSystems && isLastOfItsPage)
            report.Answer("Vid vilka operativsystem inträffar felet?", SystemsText(answers));
    }
}

Text Moment(const LocalTime& now)
{
    return DateText(now) + "  kl " + TimeTextWithSeconds(now);
}

} // namespace

Text DiagnosisFile(const Text& ownFolder)
{
    return JoinPath(ownFolder, "Diagnos\\Diagnos.txt");
}

Text BugReportFolder(const Text& ownFolder)
{
    return JoinPath(ownFolder, "BugReport");
}

Text BugReportFile(const Text& ownFolder)
{
    return JoinPath(BugReportFolder(ownFolder), "BugReport.txt");
}

bool HasSystems(const BugReportAnswers& answers, Ask& ask)
{
    if (!SystemsText(answers).empty())
        return true;
    // Kept: the misspelling is what users have always read.
    ask.Inform("Data saknas", "Du har inte anget vid vilka operativsystem felet inträffar vid! "
                              "Felrapportguiden behöver dessa uppgifter!");
    return false;
}

bool HasDiagnosis(const FileSystem& files, const Text& ownFolder, Ask& ask)
{
    if (files.FileExists(DiagnosisFile(ownFolder)))
        return true;
    ask.Inform("Diagnosfil saknas",
               "Du måste köra ett diagnostest av datorn innan du kan gå vidare!");
    return false;
}

Text BugReportText(const BugReportAnswers& answers, const OpenProjectState& state, Host& host,
                   const Text& ownFolder)
{
    const auto diagnosis = LinesOfDiagnosis(host.files, DiagnosisFile(ownFolder));
    ReportWriter report;
    report.Rule();
    report.Line("Felrapport - Quillon 2004");
    report.Rule();
    report.Line("Programversion:      " + Text(kToolVersion));
    report.Rule();
    report.Line("Rapporten skapad:    " + Moment(host.machine.Now()));
    report.Rule();
    report.Line(diagnosis[kFirstLineOfDiagnosis - 1]);
    report.Line(diagnosis[kSecondLineOfDiagnosis - 1]);
    report.Rule();
    report.Line("Bifogad projetfil:   " + AttachedName(state, ownFolder));
    report.Rule();
    report.Line();
    report.Heading("Frågor & Svar");
    report.Line();
    WriteAnswers(report, answers);
    report.Line();
    report.Heading("Beskrivning av felet");
    report.Line(answers.description);
    for (int i = 0; i < 3; ++i)
        report.Line();
    report.Rule('/');
    report.Line();
    report.Heading("DIAGNOS.TXT (Utvecklingsdatorn) ->");
    report.Line();
    for (const Text& line : diagnosis)
        report.Line(line);
    return report.Take();
}

void WriteBugReport(const BugReportAnswers& answers, Project& project,
                    const OpenProjectState& state, Host& host, Ask& ask, const Text& ownFolder)
{
    const Text text = BugReportText(answers, state, host, ownFolder);
    const Text folder = BugReportFolder(ownFolder);
    if (!host.files.DirCreate(folder))
        throw RunError(ErrorNumber::kPathNotFound, folder);
    // Names with letters that Windows-1252 lacks would come out as question marks.
    WriteWholeFile(host.files, BugReportFile(ownFolder),
                   AnsiText::Holds(text) ? AnsiText::ToBytes(text) : Text(kUtf8Bom) + text);
    if (state.ProjectFileName != kUnsavedProjectName)
        WriteProjectFile(project, JoinPath(folder, AttachedName(state, ownFolder)), host, ask);
}

} // namespace quillon
