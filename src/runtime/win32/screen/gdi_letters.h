// Letters for the screen's painter by GDI, of the fonts that Windows has.
#pragma once

#include "design/letters.h"

#include <memory>

namespace quillon {

class GdiLetters : public Letters {
public:
    GdiLetters();
    ~GdiLetters() override;

    FontHeight Height(const ScreenFont& font) override;
    std::vector<int> Advances(const ScreenFont& font, const Text& line) override;
    LetterMask Draw(const ScreenFont& font, const Text& line,
                    const std::vector<int>& advances) override;

private:
    class Device;
    std::unique_ptr<Device> device_;
};

} // namespace quillon
