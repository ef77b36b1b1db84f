// paint_screen PROJECT TOOLFOLDER WIDTH HEIGHT PIXELS: paints the project's screen as the setup
// does, with the letters of Windows, and writes its pixels as they lie in memory.
#include "pictures/screen_files.h"
#include "platform/whole_file.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win_files.h"
#include "platform/win32/win_machine.h"
#include "runtime/silent_ask.h"
#include "runtime/win32/screen/gdi_letters.h"

#include <windows.h>

#include <shellapi.h>

using namespace quillon;

namespace {

enum class End { Painted, WrongUsage, NoProject, NoPicture, Failed };

struct Order {
    Text project;
    Text toolFolder;
    int width;
    int height;
    Text pixels;
};

End Paint(const Order& order)
{
    WinFiles files;
    WinMachine machine;
    Host host{files, machine};
    SilentAsk ask;
    Project project;
    if (ReadProjectFile(project, order.project, host, ask, order.toolFolder) != ReadEnd::Whole)
        return End::NoProject;
    const ScreenFiles read = ReadScreenFiles(project, files, order.toolFolder,
                                             {.width = order.width, .height = order.height});
    if (!read.faults.empty())
        return End::NoPicture;
    std::vector<Pixel> pixels(static_cast<std::size_t>(order.width) *
                              static_cast<std::size_t>(order.height));
    GdiLetters letters;
    PaintScreen(WholeCanvas(pixels.data(), order.width, order.height), letters,
                {.project = project,
                 .pictures = read.pictures,
                 .rtfBox = read.rtfBox ? &*read.rtfBox : nullptr});
    WriteWholeFile(files, order.pixels,
                   {reinterpret_cast<const char*>(pixels.data()), pixels.size() * sizeof(Pixel)});
    return End::Painted;
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int)
{
    int count = 0;
    wchar_t** arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    End end = End::WrongUsage;
    try {
        if (arguments != nullptr && count == 6)
            end = Paint({Narrow(arguments[1]), Narrow(arguments[2]),
                         static_cast<int>(LeadingNumber(Narrow(arguments[3]))),
                         static_cast<int>(LeadingNumber(Narrow(arguments[4]))),
                         Narrow(arguments[5])});
    } catch (const std::exception&) {
        end = End::Failed;
    }
    return static_cast<int>(end);
}
