// quillonc screen: the screen behind the setup as a picture, painted without a display.
#include "cli/calls.h"
#include "cli/console_ask.h"
#include "cli/open_project.h"
#include "cli/png_file.h"
#include "design/system_letters.h"
#include "helpers/number_text.h"
#include "pictures/picture_error.h"
#include "pictures/screen_files.h"
#include "platform/saved_file.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <ostream>

namespace quillon::cli {

namespace {

// Larger than any screen; the pixels of one of them take 256 MiB.
constexpr int kMaxSide = 8192;

struct Size {
    int width;
    int height;
};

std::optional<int> SideIn(std::string_view text)
{
    const auto side = WholeNumber<int>(text);
    return side && *side >= 1 && *side <= kMaxSide ? side : std::nullopt;
}

/// "1024x768", the "x" in either case.
Size SizeOf(const CallContext& context, const char* option, Size ifMissing)
{
    const auto text = context.arguments.Value(option);
    if (!text)
        return ifMissing;
    const std::size_t sign = std::min(text->find_first_of("xX"), text->size());
    const auto width = SideIn(std::string_view(*text).substr(0, sign));
    const auto height = SideIn(std::string_view(*text).substr(std::min(sign + 1, text->size())));
    if (!width || !height)
        throw UsageError{"Växeln " + Text(option) + " kan ej vara '" + *text +
                         "'; en storlek är bredd och höjd från 1 till " + NumberText(kMaxSide) +
                         " bildpunkter, t.ex. 1024x768."};
    return {*width, *height};
}

Text FaultText(const ScreenFileFault& fault)
{
    if (fault.isRtf && fault.fault == PictureFault::UnknownFormat)
        return "Filen '" + fault.file + "' är ingen RTF-fil.";
    return PictureFaultText(fault.fault, fault.file);
}

/// What is missing from the picture ends the call; all of it is reported.
void RequireAllFiles(const ScreenFiles& files)
{
    Text text;
    for (const ScreenFileFault& fault : files.faults)
        text += (text.empty() ? "" : "\n") + FaultText(fault);
    if (!text.empty())
        throw CallFailure{text, Exit::Unreadable};
}

std::vector<Pixel> PaintWhole(const ScreenDesign& design, Size size)
{
    FontLetters letters;
    if (!letters.HasFonts())
        throw CallFailure{"Den här datorn har inga teckensnitt att skriva skärmens texter med.",
                          Exit::Stopped};
    std::vector<Pixel> pixels(static_cast<std::size_t>(size.width) *
                              static_cast<std::size_t>(size.height));
    PaintScreen(WholeCanvas(pixels.data(), size.width, size.height), letters, design);
    return pixels;
}

} // namespace

Exit PaintProjectScreen(const CallContext& context)
{
    const Text to = context.Path(context.RequireValue("--to"));
    const Size size = SizeOf(context, "--size", {1024, 768});
    const Text path = context.PathOperand(0);
    ConsoleAsk ask(nullptr, context.err);
    Session session = NewSession(context.host, ask, context.toolFolder, context.ownFolder);
    const Size surface =
        SizeOf(context, "--surface", {session.surface.width, session.surface.height});
    if (OpenProject(session, path) == Opened::InPart)
        throw CallFailure{PartlyReadText(path) + " Ingen bild skapas.", Exit::Unreadable};

    const ScreenFiles files =
        ReadScreenFiles(session.project, context.host.files,
                        {session.options.ToolFolder, session.options.OwnFolder},
                        {.surfaceWidth = surface.width,
                         .surfaceHeight = surface.height,
                         .metrics = session.surface.screen,
                         .width = size.width,
                         .height = size.height});
    RequireAllFiles(files);
    const PngFile picture(PaintWhole({.project = session.project,
                                      .width = surface.width,
                                      .height = surface.height,
                                      .metrics = session.surface.screen,
                                      .pictures = files.pictures,
                                      .rtfBox = files.rtfBox ? &*files.rtfBox : nullptr},
                                     size),
                          size.width, size.height);
    SaveWholeFile(context.host.files, to, picture.Bytes());
    if (context.WantsJson())
        return context.PrintJson({{"picture", to}, {"width", size.width}, {"height", size.height}},
                                 Exit::Done);
    context.out << "Bild: " << to << "\n";
    return Exit::Done;
}

} // namespace quillon::cli
