// Advances and heights are those of the outlines, measured once at the size in which a font is
// designed: letters stand, and lines break, where they do in the tool, however Windows fits letters
// into pixels.
//
// Each letter is drawn white on black into a bitmap of its own, where the brightness of a pixel is
// how much of it the letter covers. Grey smoothing is asked for: the colours of the other kind are
// right on one background only.
#include "runtime/win32/screen/gdi_letters.h"

#include "design/letter_join.h"
#include "helpers/utf8.h"
#include "platform/win32/wide_text.h"

#include <windows.h>

#include <algorithm>

namespace quillon {

namespace {

LOGFONTW LogicalFont(const ScreenFont& font, int size)
{
    LOGFONTW logical{};
    logical.lfHeight = -std::max(size, 1);
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

namespace {

struct Bitmap {
    Bitmap() = default;
    ~Bitmap() { DeleteObject(handle); }
    Bitmap(const Bitmap&) = delete;
    Bitmap& operator=(const Bitmap&) = delete;

    HBITMAP handle = nullptr;
};

// A device context in memory with one font.
class FontContext {
public:
    FontContext() : context_(CreateCompatibleDC(nullptr)) {}
    ~FontContext()
    {
        DeleteDC(context_);
        DeleteObject(font_);
    }
    FontContext(const FontContext&) = delete;
    FontContext& operator=(const FontContext&) = delete;

    HDC Get() const { return context_; }

    void Select(const ScreenFont& font, int size)
    {
        const LOGFONTW logical = LogicalFont(font, size);
        HFONT made = CreateFontIndirectW(&logical);
        SelectObject(context_, made);
        DeleteObject(font_);
        font_ = made;
    }

    TEXTMETRICW Metrics() const
    {
        TEXTMETRICW metrics{};
        GetTextMetricsW(context_, &metrics);
        return metrics;
    }

    /// The size in which the font is designed; 0 where it has no outlines.
    int DesignSize() const
    {
        const UINT size = GetOutlineTextMetricsW(context_, 0, nullptr);
        std::vector<std::byte> room(size);
        auto* const outline = reinterpret_cast<OUTLINETEXTMETRICW*>(room.data());
        return size >= sizeof(OUTLINETEXTMETRICW) &&
                       GetOutlineTextMetricsW(context_, size, outline) != 0
                   ? static_cast<int>(outline->otmEMSquare)
                   : 0;
    }

private:
    HDC context_;
    HFONT font_ = nullptr;
};

} // namespace

// The font and the bitmap that were asked for last.
class GdiLetters::Device {
public:
    Device()
    {
        SetTextColor(drawn_.Get(), RGB(255, 255, 255));
        SetBkColor(drawn_.Get(), RGB(0, 0, 0));
        SetTextAlign(drawn_.Get(), TA_LEFT | TA_BASELINE);
    }
    Device(const Device&) = delete;
    Device& operator=(const Device&) = delete;

    void Select(const ScreenFont& font)
    {
        if (isSelected_ && font == selected_)
            return;
        drawn_.Select(font, font.size);
        metrics_ = drawn_.Metrics();
        const int designed = drawn_.DesignSize();
        measuredSize_ = designed > 0 ? designed : std::max(font.size, 1);
        measured_.Select(font, measuredSize_);
        measuredMetrics_ = measured_.Metrics();
        selected_ = font;
        isSelected_ = true;
    }

    FontHeight Height() const
    {
        return {Scaled(measuredMetrics_.tmAscent), Scaled(measuredMetrics_.tmDescent)};
    }

    int Advance(const std::wstring& character) const
    {
        SIZE size{};
        GetTextExtentPoint32W(measured_.Get(), character.data(), static_cast<int>(character.size()),
                              &size);
        // What an emulated bold or italic letter hangs over is no part of its advance.
        return std::max(Scaled(size.cx - measuredMetrics_.tmOverhang), 0);
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
        ExtTextOutW(drawn_.Get(), overhang, ascent, ETO_OPAQUE, &all, character.data(),
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
        HBITMAP made = CreateDIBSection(drawn_.Get(), &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
        if (!made)
            return false;
        SelectObject(drawn_.Get(), made);
        DeleteObject(bitmap_.handle);
        bitmap_.handle = made;
        pixels_ = static_cast<const std::uint32_t*>(pixels);
        width_ = static_cast<int>(info.bmiHeader.biWidth);
        height_ = static_cast<int>(-info.bmiHeader.biHeight);
        return true;
    }

    /// From the size of the measuring font to that of the selected one.
    int Scaled(LONG units) const
    {
        const std::int64_t size = std::max(selected_.size, 1);
        return static_cast<int>((units * size + measuredSize_ / 2) / measuredSize_);
    }

    Bitmap bitmap_; // is destroyed after the context that holds it
    FontContext drawn_;
    FontContext measured_;
    bool isSelected_ = false;
    ScreenFont selected_;
    TEXTMETRICW metrics_{};
    int measuredSize_ = 1;
    TEXTMETRICW measuredMetrics_{};
    const std::uint32_t* pixels_ = nullptr;
    int width_ = 0;
    int height_ = 0;
};

GdiLetters::GdiLetters() : device_(std::make_unique<Device>()) {}

GdiLetters::~GdiLetters() = default;

FontHeight GdiLetters::Height(const ScreenFont& font)
{
    device_->Select(font);
    return device_->Height();
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
