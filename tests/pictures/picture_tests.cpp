#include "picture_tests.h"

#include "support/run_program.h"
#include "support/temp_folder.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillon::test {

Picture ByImageMagick(const std::string& bytes, const std::string& ending)
{
    TempFolder folder;
    const std::string file = "picture." + ending;
    folder.Put(file, bytes);
    const ProgramRun size =
        RunProgram({"/usr/bin/identify", "-format", "%w %h", folder.Path(file)});
    EXPECT_EQ(size.exitCode, 0) << size.err;
    const ProgramRun run = RunProgram({"/usr/bin/convert", folder.Path(file), "-alpha", "remove",
                                       "-depth", "8", "BGRA:" + folder.Path("pixels")});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    Picture picture;
    picture.width = std::atoi(size.out.c_str());
    const std::size_t blank = size.out.find(' ');
    picture.height = blank == std::string::npos ? 0 : std::atoi(size.out.c_str() + blank);
    const std::string pixels = run.exitCode == 0 ? folder.Get("pixels") : std::string();
    for (std::size_t at = 0; at + 4 <= pixels.size(); at += 4) {
        Pixel pixel = 0xFF000000;
        for (std::size_t i = 0; i < 3; ++i)
            pixel |= Pixel{static_cast<unsigned char>(pixels[at + i])} << (8 * i);
        picture.pixels.push_back(pixel);
    }
    return picture;
}

Usage DecodeInChild(const std::function<std::string()>& make, int width, int height)
{
    const pid_t child = fork();
    if (child == 0) {
        const PictureResult result = DecodePicture(make());
        BlockLetters letters;
        if (width != 0 && !result.picture.IsEmpty())
            result.picture.InSize(width, height, letters);
        _exit(static_cast<int>(result.fault));
    }
    int status = 0;
    rusage used{};
    EXPECT_EQ(wait4(child, &status, 0, &used), child);
    return {.isOver = WIFEXITED(status),
            .fault = static_cast<PictureFault>(WEXITSTATUS(status)),
            .peakKilobytes = used.ru_maxrss};
}

} // namespace quillon::test
