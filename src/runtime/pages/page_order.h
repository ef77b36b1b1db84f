// Which pages a setup has, in which order, and where the project keeps the words of each.
#pragma once

#include "formats/setup_information.h"
#include "runtime/pages/page.h"
#include "runtime/texts/messages.h"

#include <vector>

namespace quillon {

struct PageSource {
    PageKind kind;
    // Null on the page of the components, which appears where there is something to choose.
    Integer section::DialogBoxes::*isOn = nullptr;
    Message name; // in words of the setup
    // Where the page has words and a picture of the project's; null where it has none.
    Text section::DialogBoxData::*title = nullptr;
    Text section::DialogBoxData::*text = nullptr;
    Text section::DialogBoxData::*bitmap = nullptr;
};

const PageSource& SourceOf(PageKind kind);

/// The pages of this setup.
std::vector<PageKind> PagesOf(const SetupInformation& setup);

/// What the page is called where it has no title of its own: in lists, and in the log.
template <class Texts>
Text NameOfPage(const SetupInformation& setup, PageKind kind, const Texts& texts)
{
    const PageSource& source = SourceOf(kind);
    const Text own = source.title ? TrimBlanks(setup.project.DialogBoxData.*source.title) : Text();
    return own.empty() ? texts[source.name] : own;
}

/// The numbers of the components that the project uses.
std::vector<int> ComponentsInUse(const SetupInformation& setup);

} // namespace quillon
