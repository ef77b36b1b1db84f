// An INI file whose bytes are either of the machine's 8-bit code page or UTF-16 with its mark, as
// Windows itself reads and writes both kinds.
#pragma once

#include "ini/ini_text.h"

namespace quillon {

class EncodedIni {
public:
    /// Nothing for bytes with a mark of UTF-16 that can't be changed without losing any of them:
    /// half a surrogate pair, an odd byte at the end, the other byte order.
    static std::optional<EncodedIni> Read(std::string bytes);

    /// What texts are put in for `ini`, and what it gives back: UTF-8 of a file in UTF-16, else
    /// Windows-1252.
    std::string Coded(std::string_view text) const;
    Text Decoded(std::string_view coded) const;

    /// The file, with its mark.
    std::string Bytes() const;

    IniText ini;

private:
    EncodedIni(IniText text, bool isUtf16) : ini(std::move(text)), isUtf16_(isUtf16) {}

    bool isUtf16_;
};

} // namespace quillon
