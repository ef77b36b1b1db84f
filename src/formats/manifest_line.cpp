#include "formats/manifest_line.h"

#include "helpers/hex.h"

namespace quillon {

namespace {

bool AreDigits(std::string_view text)
{
    for (const char digit : text)
        if (HexDigitValue(digit) > 15)
            return false;
    return true;
}

} // namespace

std::optional<ManifestLineText> ParseManifestLine(std::string_view& text)
{
    const std::size_t end = text.find('\n');
    if (end == text.npos)
        return std::nullopt;
    std::string_view line(text.data(), end);
    text.remove_prefix(end + 1);
    // An editor for Windows may have been there.
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    constexpr std::size_t kNameAt = kDigestDigits + 2;
    if (line.size() <= kNameAt)
        return std::nullopt;
    // Not by `substr`, whose failure would bring a hundred kilobytes of library into the starter.
    const ManifestLineText read{{line.data(), kDigestDigits},
                                {line.data() + kNameAt, line.size() - kNameAt}};
    // The second mark says that the file was read as text or in binary, which is the same here.
    const bool hasMarks = line[kDigestDigits] == ' ' &&
                          (line[kDigestDigits + 1] == ' ' || line[kDigestDigits + 1] == '*');
    return hasMarks && AreDigits(read.digits) ? std::optional(read) : std::nullopt;
}

Sha256Digest DigestOfDigits(std::string_view digits)
{
    Sha256Digest digest{};
    for (std::size_t i = 0; i < digest.size() && 2 * i + 1 < digits.size(); ++i)
        digest[i] = static_cast<std::byte>(HexDigitValue(digits[2 * i]) << 4U |
                                           HexDigitValue(digits[2 * i + 1]));
    return digest;
}

} // namespace quillon
