// The texts that the setup shows, from the package's language file: an INI file in the project's
// language. A text that the file lacks, or that can't be meant, is shown in Swedish, so that an old
// or damaged language file never stops an installation.
#pragma once

#include "runtime/texts/messages.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace quillon {

/// No file of texts is larger; what is, isn't read.
inline constexpr std::uint64_t kMaxLanguageFileSize = 16 * 1024 * 1024;

class LanguageTexts {
public:
    /// The Swedish texts.
    LanguageTexts();
    /// The texts of a language file, given as its bytes: Windows-1252, or UTF-8 or UTF-16 as an
    /// editor of today may have saved it.
    explicit LanguageTexts(std::string_view bytes);

    const Text& operator[](Message message) const { return texts_[std::size_t(message)]; }
    /// With `first` in the place of "%1" and `second` in that of "%2".
    Text operator()(Message message, std::string_view first, std::string_view second = {}) const;
    Text operator()(const Reason& reason) const
    {
        return (*this)(reason.message, reason.first, reason.second);
    }
    void Set(Message message, Text text) { texts_[std::size_t(message)] = std::move(text); }

private:
    std::array<Text, std::size_t(Message::Count)> texts_;
};

} // namespace quillon
