#include "builder/signing/code_signer.h"

#include "builder/remove_quietly.h"

#include <algorithm>

namespace quillon {

namespace {

using Kind = ProgramArgument::Kind;

// The service of the second row of `ComboTimeStamp`, where its owner has it today; it knows both
// kinds of stamps.
constexpr const char* kTimeStampService = "http://timestamp.digicert.com";
// A service that does not answer must not hold a build server for ever. A large file takes its time
// beside that, on a slow disk.
constexpr int kMaxSeconds = 120;
constexpr std::uint64_t kSlowDisk = 10'000'000; // bytes a second
constexpr std::string_view kStampFailed = "timestamping failed";

struct KnownFault {
    std::string_view output; // of the signing program's output, in a message
    const char* text;
};
// The first text that is found counts.
constexpr KnownFault kKnownFaults[] = {
    {"Login to token failed", "PIN-koden stämmer inte, eller så är nyckelenheten låst."},
    {"Wrong password", "Lösenordet till nyckeln stämmer inte, eller så är nyckelfilen skadad."},
    {"Failed to decode private key",
     "Lösenordet till nyckeln stämmer inte, eller så är nyckelfilen skadad."},
    {"private key was not found", "Nyckeln finns inte i nyckelenheten."},
    {"nrecognized file type", "Filen är inget Windows-program."},
    {"unsupported input file type", "Filen är inget Windows-program."},
    {"ailed to read certificate", "Certifikatet kan ej läsas."},
};

/// Its own first line: those of its library begin with a number and a colon.
Text FirstLineOf(const Text& output)
{
    std::size_t begin = 0;
    while (begin < output.size()) {
        const std::size_t end = std::min(output.find('\n', begin), output.size());
        const Text line = TrimBlanks(output.substr(begin, end - begin));
        if (!line.empty() && line.find(":error:") == Text::npos && !line.starts_with("Engine "))
            return line;
        begin = end + 1;
    }
    return "inget besked";
}

Text FaultIn(const ProgramOutcome& outcome, int maxSeconds)
{
    if (outcome.tookTooLong)
        return Text(kSigningProgram) + " blev inte färdigt på " + NumberText(maxSeconds) +
               " sekunder.";
    for (const KnownFault& fault : kKnownFaults)
        if (outcome.output.find(fault.output) != Text::npos)
            return fault.text;
    return Text(kSigningProgram) + ": " + FirstLineOf(outcome.output);
}

void AddOption(std::vector<ProgramArgument>& arguments, const char* option, const Text& value)
{
    if (!value.empty())
        arguments.insert(arguments.end(), {{option}, {value}});
}

} // namespace

std::vector<TimeStampServer> TimeStampServers(Integer SignTimeStampSystem,
                                              const SigningChoices& choices)
{
    const Text own = SignTimeStampSystem == 1 ? kTimeStampService : "";
    const Text address = choices.timeStamp.value_or(own);
    if (address.empty())
        return {};
    return {{TimeStampServer::Kind::Rfc3161, address}, {TimeStampServer::Kind::Old, address}};
}

Text CodeSigner::Sign(const Text& source, const Text& signedFile, const OnWait& onWait)
{
    if (order_.servers.empty())
        return Try(source, signedFile, nullptr, onWait);
    const std::vector<TimeStampServer> servers = order_.servers;
    for (const TimeStampServer& server : servers) {
        Text fault = Try(source, signedFile, &server, onWait);
        if (fault.find(kStampFailed) == Text::npos) {
            // The next files begin with this service and kind of stamp, which has worked.
            if (fault.empty())
                order_.servers = {server};
            return fault;
        }
    }
    return "Ingen tidsstämpel kom från '" + servers.back().address + "'.";
}

Text CodeSigner::Try(const Text& source, const Text& signedFile, const TimeStampServer* server,
                     const OnWait& onWait)
{
    const std::uint64_t size = files_.Status(source).size;
    ProgramOrder order{.program = kSigningProgram,
                       .maxSeconds = kMaxSeconds + static_cast<int>(size / kSlowDisk)};
    order.arguments = {{"sign"}};
    for (ProgramArgument& argument : KeyArguments(order_.key))
        order.arguments.push_back(std::move(argument));
    if (order_.password && !order_.password->empty()) {
        order.arguments.insert(order.arguments.end(), {{"-readpass"}, {"", Kind::InputAsFile}});
        order.input = *order_.password;
    }
    order.arguments.insert(order.arguments.end(), {{"-h"}, {"sha256"}});
    AddOption(order.arguments, "-n", order_.description);
    AddOption(order.arguments, "-i", order_.url);
    if (server)
        AddOption(order.arguments, server->kind == TimeStampServer::Kind::Rfc3161 ? "-ts" : "-t",
                  server->address);
    order.arguments.insert(order.arguments.end(),
                           {{"-in"}, {source, Kind::Path}, {"-out"}, {signedFile, Kind::Path}});
    const ProgramOutcome outcome = programs_.Run(order, onWait);
    Text fault;
    if (outcome.exitCode == 0)
        fault = FaultOfSignature(signedFile);
    else if (server && outcome.output.find(kStampFailed) != Text::npos)
        fault = kStampFailed;
    else
        fault = FaultIn(outcome, order.maxSeconds);
    if (!fault.empty())
        RemoveQuietly(files_, signedFile);
    return fault;
}

// The exit code of the signing program is not enough: the signed file is read and checked. An
// unknown root is no fault, since a company may have its own.
Text CodeSigner::FaultOfSignature(const Text& signedFile)
{
    const ProgramSignature signature = ReadProgramSignature(*files_.OpenInput(signedFile));
    if (signature.state != ProgramSignature::State::Signed)
        return "Filen blev inte signerad.";
    if (!signature.isIntact)
        return "Signaturen håller inte: " + signature.fault + ".";
    return !order_.servers.empty() && signature.stamped.empty()
               ? "Signaturen har ingen giltig tidsstämpel."
               : Text();
}

} // namespace quillon
