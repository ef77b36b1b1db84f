// What the pages of a product's setup are called in each language.
#pragma once

#include "runtime/pages/page_order.h"
#include "runtime/texts/language_file.h"
#include "wine/package.h"
#include "wine/sample_product.h"

namespace quillon::test {

inline LanguageTexts TextsOf(const std::string& language)
{
    return LanguageTexts(ReadBytes(std::filesystem::path(QUILLON_SOURCE_FOLDER) / "resources" /
                                   "Language" / (language + ".LNG")));
}

/// The title of the page's window: the project's own, else the language's.
inline std::string TitleOf(const SampleProduct& product, PageKind kind, const LanguageTexts& texts)
{
    const PageSource& source = SourceOf(kind);
    return source.title ? product.project.DialogBoxData.*source.title : texts[source.name];
}

} // namespace quillon::test
