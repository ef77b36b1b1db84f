#include "builder/selfextract/self_extracting_file.h"

#include "builder/remove_quietly.h"
#include "builder/selfextract/accompanying_program.h"
#include "builder/selfextract/active_delivery.h"
#include "builder/selfextract/files_aside.h"
#include "builder/signing/sign_programs.h"
#include "formats/package_files.h"
#include "formats/runtime_programs.h"
#include "formats/self_extraction.h"
#include "helpers/encoded_text.h"
#include "helpers/windows_path.h"
#include "ini/ini_text.h"
#include "ini/profile_lines.h"
#include "platform/whole_file.h"

namespace quillon {

namespace Attribute = SelfExtractAttribute;

namespace {

constexpr const char* kStandardIconName = "SelfExtract.ico";
constexpr const char* kTempFolderDirective = "<WinTemp>";
constexpr const char* kProgramFolderDirective = "<Exe>";
constexpr const char* kMessageKey = "Msg_Extract";
constexpr std::size_t kMaxMessageLength = 200; // characters

struct SelfExtractInput {
    const CreateRun& run;
    Text archive;
    Text result;
    Text message;
    Text texts; // the whole section, with its heading

    const Project& Of() const { return run.project; }
    bool UnpacksToTempFolder() const
    {
        return Of().InstallOptionsInternet.ExpandEXEInWinTempMap != kOff;
    }
    Text UnpackFolder() const { return Text(kTempFolderDirective) + "\\" + kUnpackFolderName; }
};

using Condition = bool (*)(const SelfExtractInput&);

bool Always(const SelfExtractInput&)
{
    return true;
}
bool UnpacksToTempFolder(const SelfExtractInput& in)
{
    return in.UnpacksToTempFolder();
}
bool HasIcon(const SelfExtractInput& in)
{
    return !in.Of().InstallOptionsInternet.SelfExtractIconFilename.empty();
}
bool HasMessage(const SelfExtractInput& in)
{
    return !in.message.empty();
}
bool IsSigned(const SelfExtractInput& in)
{
    return in.Of().Sign.SignSelfExtractFile != kOff;
}

Text StartedProgram(const SelfExtractInput& in)
{
    const Text folder = in.UnpacksToTempFolder() ? in.UnpackFolder() : kProgramFolderDirective;
    return "0;" + folder + "\\" + in.Of().InstallOptions.SetupName;
}

Text ProductName(const SelfExtractInput& in)
{
    const Text& product = in.Of().Version.ProductName;
    return product.empty() ? in.Of().ProjectName.ProjectName : product;
}

Text Description(const SelfExtractInput& in)
{
    const Text& given = in.Of().Version.Description;
    return given.empty() ? ProductName(in) : given;
}

// The setup says in its manifest whether it needs the rights of an administrator.
Text Elevates(const SelfExtractInput& in)
{
    std::string setup;
    RunErrorNumber([&] {
        setup = ReadWholeFile(in.run.host.files,
                              in.run.InDestination(in.Of().InstallOptions.SetupName));
    });
    return setup.find("\"requireAdministrator\"") == std::string::npos ? Text() : Text("1");
}

/// A row has a number or a text; a failure to set it counts or not.
struct AttributeRow {
    std::uint32_t number;
    Condition isSet;
    Long (*numberValue)(const SelfExtractInput&);
    Text (*textValue)(const SelfExtractInput&) = nullptr;
    bool isChecked = false;
};

template <Long value>
Long Fixed(const SelfExtractInput&)
{
    return value;
}

using In = const SelfExtractInput&;

// clang-format off
constexpr AttributeRow kAttributesInOrder[] = {
    {Attribute::kProjectDefault, Always, Fixed<0>, nullptr, true},
    {Attribute::kUnpackPlace, Always,
     [](In in) -> Long { return in.UnpacksToTempFolder() ? UnpackPlace::kNamedFolder : UnpackPlace::kBesideProgram; }, nullptr, true},
    {Attribute::kUnpackFolder, UnpacksToTempFolder, nullptr, [](In in) { return in.UnpackFolder(); }, true},
    {Attribute::kArchive, Always, nullptr, [](In in) { return in.archive; }, true},
    {Attribute::kResult, Always, nullptr, [](In in) { return in.result; }, true},
    {Attribute::kIcon, HasIcon, nullptr, [](In in) { return in.Of().InstallOptionsInternet.SelfExtractIconFilename + ";0"; }, true},
    {300, Always, Fixed<-1>},
    {301, Always, Fixed<0>},
    {302, Always, Fixed<1>},
    {303, Always, Fixed<0>},
    {600, Always, Fixed<0>},
    {500, Always, Fixed<0>},
    {502, Always, Fixed<0>},
    {501, Always, Fixed<-1>},
    {Attribute::kProgram, Always, nullptr, StartedProgram},
    {Attribute::kShowsMessage, HasMessage, Fixed<1>},
    {Attribute::kMessageTitle, HasMessage, nullptr, [](In) { return Text(); }},
    {Attribute::kMessageText, HasMessage, nullptr, [](In in) { return in.message; }},
    {72400, Always, Fixed<2>},
    {Attribute::kSign, Always, [](In in) -> Long { return IsSigned(in) ? -1 : 0; }},
    {Attribute::kSignDescription, IsSigned, nullptr, [](In in) { return in.Of().Sign.SignDescription; }},
    {Attribute::kSignUrl, IsSigned, nullptr, [](In in) { return in.Of().Sign.SignURL; }},
    {Attribute::kSignCertificate, IsSigned, nullptr, [](In in) { return in.Of().Sign.SignSPCFilename; }},
    {Attribute::kSignKey, IsSigned, nullptr, [](In in) { return in.Of().Sign.SignPVKFilename; }},
    {Attribute::kSignTimeStamp, IsSigned, [](In in) -> Long { return in.Of().Sign.SignTimeStampSystem; }},
    {Attribute::kCompanyName, Always, nullptr, [](In in) { return in.Of().Version.CompanyName; }},
    {Attribute::kProductName, Always, nullptr, ProductName},
    {Attribute::kProductVersion, Always, nullptr, [](In in) { return in.Of().Version.ProductVersion; }},
    {Attribute::kDescription, Always, nullptr, Description},
    {Attribute::kTexts, Always, nullptr, [](In in) { return in.texts; }},
    {Attribute::kElevates, Always, nullptr, Elevates},
};
// clang-format on

/// The section alone; nothing where the file has none.
IniText StarterTexts(const Text& languageFile)
{
    const auto section = ProfileSections(languageFile).Find(kStarterSection);
    return IniText(section ? Text("[") + kStarterSection + "]\r\n" +
                                 languageFile.substr(section->begin, section->end - section->begin)
                           : Text(),
                   IniText::Names::Utf8);
}

Text MessageOf(const IniText& texts)
{
    const Text onFile = texts.Value(kStarterSection, kMessageKey).value_or("");
    return FirstCharacters(BareValue(onFile), kMaxMessageLength);
}

// Whoever runs the program reads these before there is a language file; of its message, what the
// attribute says.
Text TextsWith(IniText texts, const Text& message)
{
    if (texts.Value(kStarterSection, kMessageKey))
        texts.SetValue(kStarterSection, kMessageKey, message);
    return texts.Bytes();
}

SelfExtractInput InputOf(const CreateRun& run)
{
    std::string bytes;
    RunErrorNumber([&] {
        bytes = ReadWholeFile(run.host.files, run.InDestination(run.project.Language.LanguageFile));
    });
    const IniText texts = StarterTexts(DecodedText(bytes));
    const Text message = MessageOf(texts);
    return {.run = run,
            .archive = run.InDestination(kSelfExtractArchive),
            .result = run.InDestination(run.project.InstallOptionsInternet.SelfExtractFilename),
            .message = message,
            .texts = TextsWith(texts, message)};
}

bool SetAttributes(ActiveDelivery& delivery, const Text& project, const SelfExtractInput& input)
{
    for (const AttributeRow& row : kAttributesInOrder) {
        if (!row.isSet(input))
            continue;
        const auto number = static_cast<Long>(row.number);
        const Long result = row.textValue == nullptr
                                ? delivery.Method4(project, number, row.numberValue(input))
                                : delivery.Method6(project, number, row.textValue(input));
        if (row.isChecked && result != 0)
            return false;
    }
    return true;
}

bool TellFailure(CreateRun& run, Long number)
{
    run.ask.AddStatusLine("Fel #" + NumberText(number) +
                          " inträffade när en självuppackande installation skulle skapas!");
    if (number == ActiveDelivery::kNoIcon)
        run.ask.AddStatusLine(" - Ikonen till den självuppackande filen kan ej öppnas!");
    if (number == ErrorNumber::kOverflow)
        run.ask.AddStatusLine(" - Den självuppackande filen blir större än 4 GB!");
    if (run.DestDir.find(' ') != Text::npos)
        run.ask.Critical("Info",
                         "Destinationskatalogen (dit installationsfilerna kopieras till) får ej "
                         "innehålla mellanslag när ett självuppackande installationsprogram "
                         "skapas! Avlägsna alla mellanslag i sökvägen och försök igen!");
    return false;
}

void RemovePackedFiles(CreateRun& run)
{
    run.ask.AddStatusLine("Raderar temporära filer");
    const Project& project = run.project;
    for (const Text& name :
         {Text(kSelfExtractArchive), Text(kSelfExtractProject), project.InstallOptions.SetupName,
          Text(kSetupInformationName), Text(kFileListName), project.Language.LanguageFile,
          Text(RuntimePrograms::kUnzipLibrary.inPackage), Text(kFileContainerName),
          Text(kDesignContainerName), Text(RuntimePrograms::kSetup.inPackage), Text("QNXREG.BIN"),
          Text(RuntimePrograms::kSecondRegistryHelper.inPackage),
          Text(RuntimePrograms::kRegistryHelper.inPackage),
          Text(RuntimePrograms::kUninstaller.inPackage), Text(kLicenseRtfName),
          Text(kManifestName)})
        RemoveQuietly(run.host.files, run.InDestination(name));
    RemoveCopyOfAccompanyingProgram(run);
}

} // namespace

bool BuildSelfExtractingFile(CreateRun& run)
{
    Text& name = run.project.InstallOptionsInternet.SelfExtractFilename;
    if (name.empty())
        name = kSelfExtractDefaultName;
    run.ask.AddStatusLine("Skapar " + UpperCase(name) + " (självuppackande installationsprogram)");
    const Text project = run.InDestination(kSelfExtractProject);
    const SelfExtractInput input = InputOf(run);
    // Where the name was empty until now.
    MoveFilesAside(run);

    ActiveDelivery delivery(run.host, run.ask,
                            run.options.ToolFolder + "\\Release\\" +
                                RuntimePrograms::kSelfExtractor.name,
                            run.options.ToolFolder + "\\Res\\" + kStandardIconName);
    const auto keepFailure = [&] {
        if (delivery.LastFailure())
            run.failure = delivery.LastFailure();
    };
    delivery.Method11(run.InDestination("*.*"), input.archive);
    // What is packed then is no archive of this folder: an older one, or none.
    if (const auto failure = delivery.LastFailure()) {
        run.failure = failure;
        return TellFailure(run, failure->Number());
    }
    Long number = delivery.Method1(project);
    if (number == 0 && !SetAttributes(delivery, project, input)) {
        keepFailure();
        return false;
    }
    if (number == 0)
        number = delivery.Method10(project);
    if (number != 0) {
        keepFailure();
        return TellFailure(run, number);
    }
    if (SignProgram(run, input.result, name) == Step::Stop) {
        // A program without its signature must not be taken for the signed one.
        RemoveQuietly(run.host.files, input.result);
        return false;
    }
    RemovePackedFiles(run);
    return true;
}

} // namespace quillon
