// The pages of the help. QN.HLP is a text in Markdown (UTF-8), "# " beginning a chapter and
// "## Title {id id}" a page of it; a link names the id of its page.
#pragma once

#include "helpers/text.h"
#include "shell/command_ids.h"

#include <functional>
#include <vector>

namespace quillon {

struct HelpPage {
    std::vector<Text> ids; // at least one
    Text chapter;
    Text title;
    Text body; // Markdown

    bool operator==(const HelpPage&) const = default;
};

struct HelpRequest {
    CommandId command = CommandId::None; // the first page where it has none
    bool searches = false;               // the field for words has the keyboard
};

/// Shows the pages and does not wait for the user.
using HelpWindow = std::function<void(std::vector<HelpPage>, const HelpRequest&)>;

/// The pages in the order of the file; none where it is no help of this program.
std::vector<HelpPage> ReadHelpPages(std::string_view file);

/// "cmd103"
Text HelpPageOf(CommandId command);

/// The page of that id, or the first one; null where there is none at all.
const HelpPage* FindHelpPage(const std::vector<HelpPage>& pages, std::string_view id);

/// Whether each of the words, in whatever case, is somewhere in the page.
bool HelpPageHasWords(const HelpPage& page, std::string_view words);

} // namespace quillon
