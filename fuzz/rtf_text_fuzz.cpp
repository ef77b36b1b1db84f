// Formatted text of any content: what comes out is well formed, within its limits, and no larger
// than the file could make it.
#include "helpers/utf8.h"
#include "require.h"
#include "rtf/rtf_losses.h"
#include "rtf/rtf_text.h"

#include <cstdint>

using namespace quillon;

namespace {

void RequireText(const Text& text)
{
    Require(IsUtf8(text));
    for (const char byte : text)
        Require(static_cast<unsigned char>(byte) >= ' ' || byte == '\t' || byte == '\n');
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const std::string_view file(reinterpret_cast<const char*>(bytes), size);
    for (const Text& loss : RtfLosses(file))
        RequireText(loss);
    const auto text = ReadRtf(file);
    if (!text)
        return 0;
    Require(text->paragraphs.size() <= kMaxRtfLines + 1);
    for (const RtfFont& font : text->fonts)
        Require(IsUtf8(font.name));
    std::size_t length = 0;
    std::size_t runs = 0;
    for (const RtfParagraph& paragraph : text->paragraphs)
        for (const RtfRun& run : paragraph.runs) {
            RequireText(run.text);
            Require(!run.text.empty());
            Require(run.style.font < static_cast<int>(text->fonts.size()));
            length += run.text.size();
            ++runs;
        }
    Require(runs <= kMaxRtfRuns && runs <= size);
    // A word of five letters, "\zwnj" with its blank, is what gives most text for least room.
    Require(length <= 4 * size && length <= kMaxRtfTextSize + 4);
    return 0;
}
