// How wide texts are in a font, by the widths of their characters. Adding these up takes a
// hundredth of what laying a text out takes, and is off by the font's kerning alone, so the widest
// of thousands of texts is found at once.
#pragma once

#include <QFontMetrics>
#include <map>
#include <string_view>
#include <vector>

namespace quillon {

class CharacterWidths {
public:
    explicit CharacterWidths(const QFont& font) : metrics_(font) {}

    /// In pixels; the text is UTF-8.
    int WidthOf(std::string_view text);

private:
    int WidthOf(char32_t character);

    QFontMetrics metrics_;
    std::vector<int> ascii_ = std::vector<int>(128, -1);
    std::map<char32_t, int> others_;
};

} // namespace quillon
