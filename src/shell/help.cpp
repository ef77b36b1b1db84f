#include "shell/help.h"

#include "helpers/product.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"
#include "shell/settings_file.h"

namespace quillon {

namespace {

std::vector<HelpPage> PagesOf(const FileSystem& files, const Text& path)
{
    try {
        return ReadHelpPages(ReadWholeFile(files, path));
    } catch (const RunError&) {
        return {}; // opening it shows the reason
    }
}

} // namespace

void ShowHelp(Session& session, const HelpRequest& request)
{
    const Text file = JoinPath(session.options.ToolFolder, "QN.HLP");
    if (session.helpWindow)
        if (auto pages = PagesOf(session.host.files, file); !pages.empty())
            return session.helpWindow(std::move(pages), request);
    try {
        session.host.machine.OpenDocument(file);
    } catch (const RunError& error) {
        const bool isMissing = error.Number() == ErrorNumber::kFileNotFound ||
                               error.Number() == ErrorNumber::kPathNotFound;
        session.ask.Critical("Hjälp", "Hjälpfilen '" + PrettyPath(file) +
                                          (isMissing ? "' finns inte. Den ska ligga i samma "
                                                       "katalog som programmet."
                                                     : "' kan ej öppnas. Det saknas ett program "
                                                       "som visar hjälpfiler."));
    }
}

void ShowSupport(Session& session)
{
    Text text = "Vänd dig till den som du har fått programmet av och uppge:\r\n\r\n"
                "– programmets namn och version: " +
                Text(kProductName) + ", " + Text(kToolVersion) +
                "\r\n– vad du gjorde och exakt vad meddelandet sade"
                "\r\n– projektfilen (.qnp), om felet hör till ett visst projekt";
    if (const Text settings = SettingsFile(session.host.machine); !settings.empty())
        text += "\r\n– programmets inställningar: " + settings;
    session.ask.Inform("Support", text);
}

} // namespace quillon
