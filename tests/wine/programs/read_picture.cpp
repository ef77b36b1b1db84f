// Reads a picture file as the setup does and writes its size and pixels: two numbers of 32 bits,
// the reason where there is none, then four bytes a pixel.
#include "pictures/picture_file.h"

#include <cstdint>
#include <windows.h>

#include <cwchar>
#include <shellapi.h>

namespace {

struct NoLetters : quillon::Letters {
    quillon::FontHeight Height(const quillon::ScreenFont&) override { return {}; }
    std::vector<int> Advances(const quillon::ScreenFont&, const quillon::Text&) override
    {
        return {};
    }
    quillon::LetterMask Draw(const quillon::ScreenFont&, const quillon::Text&,
                             const std::vector<int>&) override
    {
        return {};
    }
};

std::string ReadAll(const wchar_t* path)
{
    std::string bytes;
    const HANDLE file =
        CreateFileW(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    char piece[4096];
    for (DWORD got = 0; ReadFile(file, piece, sizeof piece, &got, nullptr) && got > 0;)
        bytes.append(piece, got);
    CloseHandle(file);
    return bytes;
}

void Append(std::string& bytes, std::uint32_t number)
{
    bytes.append(reinterpret_cast<const char*>(&number), sizeof number);
}

} // namespace

// read_picture FILE WIDTH HEIGHT OUTPUT; a width of 0 asks for the picture's own size.
int WINAPI wWinMain(HINSTANCE, HINSTANCE, wchar_t*, int)
{
    int count = 0;
    wchar_t** arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    if (count != 5)
        return 2;
    const quillon::PictureResult result = quillon::DecodePicture(ReadAll(arguments[1]));
    const int width = static_cast<int>(std::wcstol(arguments[2], nullptr, 10));
    const int height = static_cast<int>(std::wcstol(arguments[3], nullptr, 10));
    NoLetters letters;
    const quillon::Picture& picture =
        result.picture.InSize(width == 0 ? result.picture.Width() : width,
                              width == 0 ? result.picture.Height() : height, letters);
    std::string bytes;
    Append(bytes, static_cast<std::uint32_t>(picture.width));
    Append(bytes, static_cast<std::uint32_t>(picture.height));
    Append(bytes, static_cast<std::uint32_t>(result.fault));
    for (const quillon::Pixel pixel : picture.pixels)
        Append(bytes, pixel);
    const HANDLE file =
        CreateFileW(arguments[4], GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    CloseHandle(file);
    return written == bytes.size() ? 0 : 1;
}
