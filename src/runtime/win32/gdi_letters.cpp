// Each letter is drawn white on black into a bitmap of its own, where the brightness of a pixel is
// how much of it the letter covers. Grey smoothing is asked for: the colours of the other kind are
// right on one ground only.
#include "runtime/win32/gdi_letters.h"

#include "design/letter_join.h"
#include "helpers/utf8.h"
#include "platform/win32/wide_text.h"

#include <windows.h>

#include <algorithm>

namespace quillon {

namespace {

LOGFONTW LogicalFont(const ScreenFont& font)
{
    LOGFONTW logical{};
    logical.lfHeight = -std::max(font.size, 1);
    logical.lfWeight = font.isBold ? FW_BOLD : FW_NORMAL;
    logical.lfItalic = font.isItalic;
    logical.lfCharSet = DEFAULT_CHARSET;
    logical.lfOutPrecision = OUT_TT_PRECIS;
    logical.lfQuality = ANTIALIASED_QUALITY;
    logical.lfPitchAndFamily = font.name.empty() ? FF_SWISS : FF_DONTCARE;
    const std::wstring name = Wide(font.name);
    std::copy_n(name.begin(), std::min<std::size_t>(name.size(), LF_FACESIZE - 1),
                logical.lfFaceName);
    return logical;
}

/// The line's code points, each as Windows takes it: one number or two.
std::vector<std::wstring> CodePoints(const Text& line)
{
    std::vector<std::wstring> characters;
    for (std::size_t position = 0; position < line.size();) {
        const std::size_t begin = position;
        NextCodePoint(line, position);
        characters.push_back(Wide(std::string_view(line).substr(begin, position - begin)));
    }
    return characters;
}

} // namespace

// A device context in memory with the font and the bitmap that were asked for last.
class GdiLetters::Device {
public:
    Device() : context_(CreateCompatibleDC(nullptr))
    {
        SetTextColor(context_, RGB(255, 255, 255));
        SetBkColor(context_, RGB(0, 0, 0));
        SetTextAlign(context_, TA_LEFT | TA_BASELINE);
    }
    ~Device()
    {
        DeleteDC(context_);
        DeleteObject(font_);
        DeleteObject(bitmap_);
    }
    Device(const Device&) = delete;
    Device& operator=(const Device&) = delete;

    void Select(const ScreenFont& font)
    {
        if (font_ && font == selected_)
            return;
        const LOGFONTW logical = LogicalFont(font);
        HFONT made = CreateFontIndirectW(&logical);
        SelectObject(context_, made);
        DeleteObject(font_);
        font_ = made;
        selected_ = font;
        GetTextMetricsW(context_, &metrics_);
    }

    const TEXTMETRICW& Metrics() const { return metrics_; }

    int Advance(const std::wstring& character) const
    {
        SIZE size{};
        GetTextExtentPoint32W(context_, character.data(), static_cast<int>(character.size()),
                              &size);
        // What an emulated bold or italic letter hangs over is no part of its advance.
        return std::max(static_cast<int>(size.cx - metrics_.tmOverhang), 0);
    }

    LetterMask Draw(const std::wstring& character)
    {
        const int overhang = selected_.size / 2 + 1;
        const int ascent = static_cast<int>(metrics_.tmAscent) + 1;
        LetterMask mask{.left = -overhang,
                        .top = -ascent,
                        .width = Advance(character) + 2 * overhang,
                        .height = static_cast<int>(metrics_.tmHeight) + 2};
        if (!MakeRoom(mask.width, mask.height))
            return {};
        const RECT all{0, 0, mask.width, mask.height};
        ExtTextOutW(context_, overhang, ascent, ETO_OPAQUE, &all, character.data(),
                    static_cast<UINT>(character.size()), nullptr);
        GdiFlush();
        for (int y = 0; y < mask.height; ++y) {
            const std::uint32_t* row = pixels_ + std::ptrdiff_t{y} * width_;
            for (int x = 0; x < mask.width; ++x)
                mask.coverage.push_back(static_cast<std::uint8_t>(row[x] >> 8 & 0xFF));
        }
        return mask;
    }

private:
    bool MakeRoom(int width, int height)
    {
        if (width <= width_ && height <= height_)
            return true;
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = std::max(width, width_);
        info.bmiHeader.biHeight = -std::max(height, height_); // the first row is the top one
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* pixels = nullptr;
        HBITMAP made = CreateDIBSection(context_, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
        if (!made)
            return false;
        SelectObject(context_, made);
        DeleteObject(bitmap_);
        bitmap_ = made;
        pixels_ = static_cast<const std::uint32_t*>(pixels);
        width_ = static_cast<int>(info.bmiHeader.biWidth);
        height_ = static_cast<int>(-info.bmiHeader.biHeight);
        return true;
    }

    HDC context_;
    HFONT font_ = nullptr;
    HBITMAP bitmap_ = nullptr;
    ScreenFont selected_;
    TEXTMETRICW metrics_{};
    const std::uint32_t* pixels_ = nullptr;
    int width_ = 0;
    int height_ = 0;
};

GdiLetters::GdiLetters() : device_(std::make_unique<Device>()) {}

GdiLetters::~GdiLetters() = default;

FontHeight GdiLetters::Height(const ScreenFont& font)
{
    device_->Select(font);
    return {static_cast<int>(device_->Metrics().tmAscent),
            static_cast<int>(device_->Metrics().tmDescent)};
}

std::vector<int> GdiLetters::Advances(const ScreenFont& font, const Text& line)
{
    device_->Select(font);
    std::vector<int> advances;
    for (const std::wstring& character : CodePoints(line))
        advances.push_back(device_->Advance(character));
    return advances;
}

LetterMask GdiLetters::Draw(const ScreenFont& font, const Text& line,
                            const std::vector<int>& advances)
{
    device_->Select(font);
    std::vector<LetterMask> letters;
    for (const std::wstring& character : CodePoints(line))
        letters.push_back(device_->Draw(character));
    return JoinLetters(font, letters, advances);
}

} // namespace quillon
