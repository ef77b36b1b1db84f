// Leads the user through the pages of the setup, forwards and back, and holds what was chosen.
#pragma once

#include "runtime/pages/page_state.h"

namespace quillon {

class PageChain {
public:
    explicit PageChain(const PageInput& input) : input_(input), state_(input_) {}
    PageChain(const PageChain&) = delete;
    PageChain& operator=(const PageChain&) = delete;

    enum class End { Install, Cancelled };
    /// All pages before the installation. Cancel ends it once the user has confirmed that.
    End ShowPages(PageView& view);
    /// The page after the installation, where the project has one.
    void ShowClosingPage(PageView& view);

    /// An RTF document in a page of its own.
    void ShowDocument(PageView& view, const Text& title, const std::string& rtf);

    const UserChoices& Choices() const { return state_.choices; }
    /// Whether the user wants to see the project's document.
    bool ShowsDocument() const { return state_.showsDocument; }

private:
    PageAction Show(PageView& view, SetupPage& page);

    PageInput input_;
    PageState state_;
};

} // namespace quillon
