// quillonc print: the printed file list as a PDF.
#include "cli/box_json.h"
#include "cli/calls.h"
#include "cli/console_ask.h"
#include "cli/open_project.h"
#include "project/project_title.h"
#include "tools/pdf_file.h"

#include <nlohmann/json.hpp>
#include <ostream>

namespace quillon::cli {

Exit PrintProject(const CallContext& context)
{
    const Text path = context.PathOperand(0);
    const Text file = context.Path(context.RequireValue("--to"));
    ConsoleAsk ask(nullptr, context.err);
    Session session = NewSession(context.host, ask, context.toolFolder, context.ownFolder);
    // A printed part would be taken for the whole list.
    if (OpenProject(session, path) == Opened::InPart)
        throw CallFailure{PartlyReadText(path) + " Inget skrivs ut.", Exit::Unreadable};
    const bool hasRows = HasRowsToPrint(session.project.Files, ask);
    std::size_t pageCount = 0;
    if (hasRows) {
        const auto pages = PagesOfFileList(session.project, session.state,
                                           context.host.machine.DecimalSign(), ask);
        pageCount = pages.size();
        WritePdf(context.host.files, file, pages, "Fillista - " + ProjectTitle(path),
                 context.host.machine.Now());
    }
    const Exit exit = hasRows ? Exit::Done : Exit::Stopped;
    if (context.WantsJson())
        return context.PrintJson({{"result", hasRows ? "done" : "stopped"},
                                  {"file", file},
                                  {"pages", pageCount},
                                  {"boxes", BoxesJson(ask)}},
                                 exit);
    if (hasRows)
        context.out << "Utskrift: " << file << " (" << pageCount
                    << (pageCount == 1 ? " sida)\n" : " sidor)\n");
    return exit;
}

} // namespace quillon::cli
