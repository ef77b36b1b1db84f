#include "shell/help_pages.h"

#include "helpers/number_text.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr std::string_view kChapterMark = "# ";
constexpr std::string_view kPageMark = "## ";

std::vector<Text> Words(std::string_view text)
{
    std::vector<Text> words;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find(' ', at), text.size());
        if (end > at)
            words.emplace_back(text.substr(at, end - at));
        at = end + 1;
    }
    return words;
}

/// A page from "Title {id id}"; without ids where the line has none.
HelpPage PageOfHeading(std::string_view heading)
{
    HelpPage page;
    const std::size_t open = heading.rfind('{');
    if (open == std::string_view::npos || !heading.ends_with('}'))
        return page;
    page.title = TrimBlanks(heading.substr(0, open));
    page.ids = Words(heading.substr(open + 1, heading.size() - open - 2));
    return page;
}

} // namespace

std::vector<HelpPage> ReadHelpPages(std::string_view file)
{
    std::vector<HelpPage> pages;
    if (!file.starts_with(kChapterMark))
        return pages;
    Text chapter;
    for (std::size_t at = 0; at < file.size();) {
        const std::size_t end = std::min(file.find('\n', at), file.size());
        std::string_view line = file.substr(at, end - at);
        at = end + 1;
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        if (line.starts_with(kPageMark)) {
            HelpPage page = PageOfHeading(line.substr(kPageMark.size()));
            if (page.ids.empty())
                return {};
            page.chapter = chapter;
            pages.push_back(std::move(page));
        } else if (line.starts_with(kChapterMark)) {
            chapter = line.substr(kChapterMark.size());
        } else if (!pages.empty()) {
            pages.back().body.append(line) += '\n';
        }
    }
    return pages;
}

Text HelpPageOf(CommandId command)
{
    return "cmd" + NumberText(static_cast<std::int64_t>(command));
}

const HelpPage* FindHelpPage(const std::vector<HelpPage>& pages, std::string_view id)
{
    const auto found = std::ranges::find_if(
        pages, [id](const HelpPage& page) { return std::ranges::count(page.ids, id) != 0; });
    if (found != pages.end())
        return &*found;
    return pages.empty() ? nullptr : &pages.front();
}

bool HelpPageHasWords(const HelpPage& page, std::string_view words)
{
    const Text text = LowerCase(page.chapter + "\n" + page.title + "\n" + page.body);
    return std::ranges::all_of(Words(LowerCase(words)),
                               [&](const Text& word) { return ContainsText(text, word); });
}

} // namespace quillon
