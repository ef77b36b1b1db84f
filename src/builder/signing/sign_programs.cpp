#include "builder/signing/sign_programs.h"

#include "builder/remove_quietly.h"
#include "builder/signing/code_signer.h"
#include "helpers/windows_path.h"
#include "platform/failure_text.h"

namespace quillon {

namespace {

constexpr const char* kSignedSuffix = ".SIGNED";

void Refuse(CreateRun& run, const Text& what, const Text& reason)
{
    run.ask.AddStatusLine("Fel! Kan ej signera" + (what.empty() ? "" : " " + what) + "!");
    run.ask.AddStatusLine(" " + reason);
    run.signingFailure = what.empty() ? reason : "'" + what + "' kan ej signeras: " + reason;
}

// Failures of the machine as a text for the user, also where the signing program is missing.
template <class Work>
Text FaultOf(Work work)
{
    try {
        return work();
    } catch (const RunError& error) {
        return FailureText(error, error.Path());
    }
}

// Nothing where the user gives none.
std::optional<Text> PasswordFor(const Signing& signing, const SigningKey& key)
{
    if (signing.choices.password)
        return signing.choices.password;
    if (!signing.askPassword)
        return {};
    const bool isToken = key.kind == SigningKey::Kind::Token;
    return signing.askPassword(
        isToken ? "PIN-kod" : "Lösenord",
        isToken ? "PIN-kod till nyckelenheten:"
                : "Lösenord till '" +
                      (key.kind == SigningKey::Kind::Container ? key.certificate : key.key) + "':");
}

Text PrepareSigner(CreateRun& run)
{
    Signing& signing = *run.signing;
    const section::Sign& sign = run.project.Sign;
    SigningOrder order{.key = KeyFor(sign, signing.choices),
                       .password = {},
                       .description = sign.SignDescription,
                       .url = sign.SignURL,
                       .servers = TimeStampServers(sign.SignTimeStampSystem, signing.choices)};
    if (Text fault = FaultOfKey(run.host.files, order.key); !fault.empty())
        return fault;
    if (!signing.programs->IsInstalled(kSigningProgram))
        return Text("Programmet ") + kSigningProgram + " saknas; installera paketet " +
               kSigningProgram + ".";
    if (NeedsPassword(run.host.files, order.key)) {
        order.password = PasswordFor(signing, order.key);
        if (!order.password)
            return "Lösenordet till nyckeln saknas.";
    }
    signing.folder = signing.programs->MakeWorkFolder();
    signing.signer = std::make_unique<CodeSigner>(run.host, *signing.programs, std::move(order));
    return {};
}

/// Signs into a new file; true when it is there.
bool SignInto(CreateRun& run, const Text& source, const Text& signedFile, const Text& name)
{
    run.ask.AddStatusLine("Signerar " + name);
    const Text fault = FaultOf([&] {
        return run.signing->signer->Sign(source, signedFile, [&] { run.ask.ProcessEvents(); });
    });
    if (!fault.empty())
        Refuse(run, name, fault);
    return fault.empty();
}

} // namespace

Signing::Signing(ProgramRunner* runner, SigningChoices made, PasswordQuestion ask)
    : programs(runner), choices(std::move(made)), askPassword(std::move(ask))
{
}

Signing::~Signing() = default;

bool SignsPrograms(const CreateRun& run)
{
    if (run.signing && run.signing->choices.wish != SigningChoices::SigningMode::OfProject)
        return run.signing->choices.wish == SigningChoices::SigningMode::Sign;
    return run.project.Sign.SignSelfExtractFile != kOff;
}

Step PrepareSigning(CreateRun& run)
{
    if (!SignsPrograms(run))
        return Step::GoOn;
    const bool canSign = run.signing && run.signing->programs;
    const Text fault = canSign ? FaultOf([&] { return PrepareSigner(run); })
                               : Text("Här finns inget som kan signera.");
    if (fault.empty())
        return Step::GoOn;
    Refuse(run, "", fault);
    return Step::Stop;
}

// The signed file grows in a folder of its own: a disk has no room for two.
Step CopyProgramSigned(CreateRun& run, const Text& source, const Text& target, const Text& name)
{
    FileSystem& files = run.host.files;
    if (!SignsPrograms(run)) {
        files.CopyContent(source, target);
        return Step::GoOn;
    }
    const LocalTime modified = files.Status(source).modified;
    const Text signedFile = JoinPath(run.signing->folder->Path(), ExtractFilename(target));
    RemoveQuietly(files, signedFile);
    if (!SignInto(run, source, signedFile, name))
        return Step::Stop;
    files.CopyContent(signedFile, target);
    files.SetModified(target, modified);
    files.RemoveFile(signedFile);
    return Step::GoOn;
}

Step SignProgram(CreateRun& run, const Text& path, const Text& name)
{
    if (!SignsPrograms(run))
        return Step::GoOn;
    FileSystem& files = run.host.files;
    const Text signedFile = path + kSignedSuffix;
    RemoveQuietly(files, signedFile);
    if (!SignInto(run, path, signedFile, name))
        return Step::Stop;
    const Text fault = FaultOf([&] {
        files.Replace(signedFile, path);
        return Text();
    });
    if (fault.empty())
        return Step::GoOn;
    RemoveQuietly(files, signedFile);
    Refuse(run, name, fault);
    return Step::Stop;
}

} // namespace quillon
