// What painting the setup's screen takes on one core: the whole of it, a step of a window that is
// resized, and what a picture that is dragged uncovers. The times are of the processor.
#include "design/screen.h"
#include "design/system_letters.h"

#include <benchmark/benchmark.h>

namespace quillon::bench {
namespace {

Picture Colourful(int width, int height)
{
    Picture picture{width, height, {}};
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            picture.pixels.push_back(0xFF000000U | static_cast<Pixel>(x * y & 0xFFFFFF));
    return picture;
}

/// A rectangular blend, three pictures (in its own size, stretched, transparent) and a title with
/// a shadow, made on a surface of 960 x 540.
class Desk {
public:
    Desk()
    {
        section::DesBackground& background = project.DesBackground;
        background.BackColor1 = 0x40D0FF;
        background.BackColor2 = 0x802010;
        background.BlendDirection = 5;
        project.DesTitle.TitleText = "Räknaren för alla";
        project.DesTitle.TitleShadow = kOn;
        project.DesTitle.TitleFontSize = 36;
        Place(0, 20, 100, false);
        Place(1, 340, 150, true);
        Place(2, 660, 200, false);
        project.DesPictures.Pictures[2].UseTransparentBkg = kOn;
        for (ScalablePicture& picture : pictures.pictures)
            picture = Colourful(280, 200);
        pictures.pictures[1] = Colourful(1600, 1200); // as a camera's is
        pictures.pictures[2].MakeTransparent(
            TransparentColour(project.DesPictures.TransparentColorNr));
    }

    void Paint(int width, int height, std::optional<PixelRect> part = {})
    {
        pixels.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
        Canvas canvas = WholeCanvas(pixels.data(), width, height);
        canvas.clip = part.value_or(canvas.clip);
        PaintScreen(canvas, letters,
                    {.project = project, .width = 960, .height = 540, .pictures = pictures});
        benchmark::ClobberMemory();
    }

private:
    void Place(std::size_t number, Integer left, Integer top, bool isStretched)
    {
        section::DesPicture& picture = project.DesPictures.Pictures[number];
        picture.PictureFilename = "picture";
        picture.PictureXPos = static_cast<Integer>(left * ScreenMetrics().TPPX);
        picture.PictureYPos = static_cast<Integer>(top * ScreenMetrics().TPPY);
        picture.StretchPicture = isStretched ? kOn : kOff;
        picture.PictureWidth = 280;
        picture.PictureHeight = 200;
    }

    Project project;
    ScreenPictures pictures;
    FontLetters letters;
    std::vector<Pixel> pixels;
};

/// As the setup shows it: once, nothing is ready from before.
void WholeScreenFirst(benchmark::State& state)
{
    for (auto _ : state) {
        state.PauseTiming();
        Desk desk;
        state.ResumeTiming();
        desk.Paint(3840, 2160);
    }
}

/// As it is painted again, for example when a page of the setup is closed.
void WholeScreenAgain(benchmark::State& state)
{
    Desk desk;
    desk.Paint(3840, 2160);
    for (auto _ : state)
        desk.Paint(3840, 2160);
}

/// Each step has another size, so everything is scaled again.
void ResizeStep(benchmark::State& state)
{
    Desk desk;
    int step = 0;
    for (auto _ : state) {
        step = (step + 1) % 100;
        desk.Paint(1920 - 2 * step, 1080 - step);
    }
}

/// What a picture of 280 x 200 uncovers in a step of three pixels, in both its places.
void DragStep(benchmark::State& state)
{
    Desk desk;
    desk.Paint(1920, 1080);
    for (auto _ : state)
        desk.Paint(1920, 1080, RectAt(700, 400, 283, 203));
}

BENCHMARK(WholeScreenFirst)->Unit(benchmark::kMillisecond);
BENCHMARK(WholeScreenAgain)->Unit(benchmark::kMillisecond);
BENCHMARK(ResizeStep)->Unit(benchmark::kMillisecond);
BENCHMARK(DragStep)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quillon::bench
