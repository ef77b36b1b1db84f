#include "runtime/pages/page_chain.h"

#include "runtime/pages/page_order.h"

#include <algorithm>

namespace quillon {

namespace {

// No password is asked for where the package has none, or where it was given already.
std::vector<PageKind> PagesBefore(const PageInput& input)
{
    std::vector<PageKind> pages = PagesOf(input.setup);
    const bool asksPassword =
        !input.hasPassword && !input.setup.project.DialogBoxData.CorrectPassword.empty();
    std::erase_if(pages, [&](PageKind kind) {
        return kind == PageKind::InstallCompleted || (kind == PageKind::Password && !asksPassword);
    });
    return pages;
}

} // namespace

PageAction PageChain::Show(PageView& view, SetupPage& page)
{
    view.SetVariables(state_.Variables());
    const PageAction action = view.Show(
        page, [this](SetupPage& shown, PageField field) { ReactTo(state_, shown, field); });
    StoreAnswers(state_, page);
    return action;
}

PageChain::End PageChain::ShowPages(PageView& view)
{
    const std::vector<PageKind> pages = PagesBefore(input_);
    for (std::size_t at = 0; at < pages.size();) {
        SetupPage page = MakePage(state_, pages[at]);
        page.canGoBack = at > 0;
        // The user can't go on without accepting the agreement.
        page.canCancel = input_.canCancel || page.buttons == PageButtons::BackYesNo;
        switch (Show(view, page)) {
        case PageAction::Back:
            at -= at > 0 ? 1 : 0;
            break;
        case PageAction::Next:
            at += MayLeavePage(state_, page) ? 1 : 0;
            break;
        case PageAction::Cancel:
            if (input_.ask.YesNo(state_.ProjectTitle(), input_.texts[Message::CancelQuestion],
                                 Ask::Stops::OnYes))
                return End::Cancelled;
        }
    }
    view.SetVariables(state_.Variables());
    view.Hide();
    return End::Install;
}

void PageChain::ShowClosingPage(PageView& view)
{
    const std::vector<PageKind> pages = PagesOf(input_.setup);
    if (std::ranges::find(pages, PageKind::InstallCompleted) == pages.end())
        return;
    SetupPage page = MakePage(state_, PageKind::InstallCompleted);
    Show(view, page);
}

void PageChain::ShowDocument(PageView& view, const Text& title, const std::string& rtf)
{
    SetupPage page = MakeDocumentPage(state_, title, rtf);
    view.Show(page, [](SetupPage&, PageField) {});
}

} // namespace quillon
