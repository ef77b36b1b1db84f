// Apart from the walk over UTF-8, which the starter of a package needs in a program that must not
// grow by what makes strings.
#include "helpers/utf8.h"

namespace quillon {

void AppendCodePoint(std::string& text, char32_t codePoint)
{
    const auto append = [&text](char32_t byte) { text += static_cast<char>(byte); };
    if (codePoint < 0x80) {
        append(codePoint);
    } else if (codePoint < 0x800) {
        append(0xC0U | (codePoint >> 6U));
        append(0x80U | (codePoint & 0x3FU));
    } else if (codePoint < 0x10000) {
        append(0xE0U | (codePoint >> 12U));
        append(0x80U | ((codePoint >> 6U) & 0x3FU));
        append(0x80U | (codePoint & 0x3FU));
    } else {
        append(0xF0U | (codePoint >> 18U));
        append(0x80U | ((codePoint >> 12U) & 0x3FU));
        append(0x80U | ((codePoint >> 6U) & 0x3FU));
        append(0x80U | (codePoint & 0x3FU));
    }
}

} // namespace quillon
