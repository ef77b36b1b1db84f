#include "cli/package_source.h"

#include "archive/solid/solid_error.h"
#include "archive/solid/solid_unpack.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"

#include <nlohmann/json.hpp>

namespace quillon::cli {

namespace {

using State = ProgramSignature::State;

// Roots beside those of the machine, for companies that have their own.
Text TrustedRoots(const CallContext& context)
{
    const std::string option = "--trust";
    if (!context.arguments.Declares(option) || !context.arguments.Has(option))
        return {};
    const Text path = context.Path(*context.arguments.Value(option));
    try {
        return ReadWholeFile(context.host.files, path);
    } catch (const RunError& error) {
        throw CallFailure{FailureText(error, path), Exit::Unreadable};
    }
}

void Unpack(const CallContext& context, PackageSource& source)
{
    FileSystem& files = context.host.files;
    if (!HasSolidPayload(*files.OpenInput(source.path)))
        throw CallFailure{"'" + source.path + "' är ingen installation.", Exit::Unreadable};
    if (!context.programs)
        throw CallFailure{"Här går det ej att packa upp '" + source.path + "'.", Exit::Stopped};
    source.unpacked = context.programs->MakeWorkFolder();
    try {
        const SolidReader payload(files.OpenInput(source.path));
        FolderSink sink(files, source.unpacked->Path());
        payload.Extract(sink);
        sink.Keep();
    } catch (const SolidError& error) {
        throw CallFailure{"'" + source.path + "' är skadad: " + error.what() + ".",
                          Exit::Unreadable};
    }
}

const char* WordOf(const ProgramSignature& signature)
{
    if (signature.state != State::Signed)
        return "none";
    return signature.isIntact ? "intact" : "damaged";
}

Json TextOrNull(const Text& text)
{
    return text.empty() ? Json() : Json(text);
}

} // namespace

PackageSource OpenPackageSource(const CallContext& context, const Text& path)
{
    FileSystem& files = context.host.files;
    PackageSource source{.path = path};
    source.isProgram = files.FileExists(path);
    if (!source.isProgram && !files.DirExists(path))
        throw CallFailure{"Katalogen '" + path + "' finns inte.", Exit::Unreadable};
    if (source.isProgram) {
        Unpack(context, source);
        source.signature = ReadProgramSignature(*files.OpenInput(path), TrustedRoots(context));
    }
    source.package = OpenPackage(files, source.isProgram ? source.unpacked->Path() : path);
    return source;
}

Json SignatureJson(const ProgramSignature& signature)
{
    Json object = {{"state", WordOf(signature)}};
    if (signature.state == State::Signed) {
        object["trusted"] = signature.isTrusted;
        object["signer"] = TextOrNull(signature.signer);
        object["issuer"] = TextOrNull(signature.issuer);
        object["stamped"] = TextOrNull(signature.stamped);
        object["stampedBy"] = TextOrNull(signature.stampedBy);
        object["fault"] = TextOrNull(signature.fault);
    }
    return object;
}

Text SignatureLine(const ProgramSignature& signature)
{
    if (signature.state != State::Signed)
        return "Signatur: ingen.";
    Text line = "Signatur: " + (signature.signer.empty() ? Text("okänd") : signature.signer);
    if (!signature.issuer.empty())
        line += ", utfärdad av " + signature.issuer;
    if (!signature.stamped.empty())
        line += ", stämplad " + signature.stamped + " av " + signature.stampedBy;
    return line + (signature.isTrusted ? "; giltig." : "; " + signature.fault + ".");
}

Text SignatureFault(const ProgramSignature& signature)
{
    const bool isBroken = signature.state == State::Signed && !signature.isIntact;
    return isBroken ? "Signaturen håller inte: " + signature.fault + "." : Text();
}

} // namespace quillon::cli
