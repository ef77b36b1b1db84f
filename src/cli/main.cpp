// quillonc: the tool without a window, for scripts and build servers.
#include "cli/calls.h"
#include "cli/open_project.h"
#include "helpers/product.h"
#include "platform/run_error.h"
#include "platform/this_host.h"

#include <algorithm>
#include <iostream>

namespace {

using namespace quillon;
using namespace quillon::cli;

Exit RunCall(const Arguments& arguments)
{
    ThisHost host;
    for (const Text& complaint : host.complaints)
        std::cerr << complaint << "\n";
    const CallContext context{
        .arguments = arguments,
        .host = host.host,
        .toolFolder = host.ProgramFolder(),
        .ownFolder = host.OwnFolder(),
        .toWindows = [&](const std::string& hostPath) { return host.drives.ToWindows(hostPath); },
        .out = std::cout,
        .err = std::cerr,
        .programs = &host.programs};
    try {
        return arguments.call->run(context);
    } catch (const CallFailure& failure) {
        return context.Fail(failure.text, failure.exit);
    } catch (const RunError& error) {
        // Most failures name their file; of the others it is the file that the call works on.
        return context.Fail(FailureText(error, arguments.operands.empty()
                                                   ? Text()
                                                   : Text(arguments.operands.front())),
                            Exit::Stopped);
    }
}

// True also where the switch follows a call, as in "create --help".
bool AsksForHelp(const std::vector<std::string>& arguments)
{
    const auto last = std::ranges::find(arguments, "--");
    return std::any_of(arguments.begin(), last, [](const std::string& argument) {
        return argument == "--help" || argument == "-h";
    });
}

Exit Run(const std::vector<std::string>& arguments)
{
    const std::string first = arguments.empty() ? "" : arguments[0];
    if (AsksForHelp(arguments)) {
        std::cout << HelpText(AllCalls());
        return Exit::Done;
    }
    if (first == "--version") {
        std::cout << kToolVersion << "\n";
        return Exit::Done;
    }
    try {
        return RunCall(ReadArguments(arguments, AllCalls()));
    } catch (const UsageError& error) {
        std::cerr << error.text << "\nquillonc --help visar alla anrop.\n";
        return Exit::Usage;
    }
}

} // namespace

int main(int argc, char** argv)
{
    InstallSignalHandlers();
    const Exit exit = Run({argv + 1, argv + argc});
    // A script must not take truncated output for all of it.
    std::cout.flush();
    if (std::cout)
        return static_cast<int>(exit);
    std::cerr << "Utskriften kunde inte skrivas till sitt slut.\n";
    return static_cast<int>(Exit::Stopped);
}
