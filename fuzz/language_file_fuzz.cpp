// Language files of any content: every text is there, short enough to be shown, and a text.
#include "runtime/texts/language_file.h"

#include "helpers/utf8.h"

#include <cstdlib>

using namespace quillon;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const LanguageTexts texts(std::string_view(reinterpret_cast<const char*>(bytes), size));
    for (int i = 0; i < int(Message::Count); ++i) {
        const Text& text = texts[Message(i)];
        const bool isText = !text.empty() && text.size() <= 2000 && IsUtf8(text) &&
                            text.find('\0') == Text::npos && text.find('\n') == Text::npos;
        if (!isText)
            std::abort();
    }
    return 0;
}
