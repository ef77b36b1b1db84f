#include "actions/dialog_chain.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace quillon {

namespace {

using section::DialogBoxes;

using Rivals = std::pair<DialogSwitch, DialogSwitch>;

constexpr Rivals kAgreements{&DialogBoxes::LicenseInfoDlg, &DialogBoxes::LicenseInfoRtfDlg};
constexpr Rivals kDestinations{&DialogBoxes::DestinationDlg, &DialogBoxes::DestinationDriveDlg};

/// The one of the two pages that excludes this one; null where the page is neither.
DialogSwitch RivalOf(DialogSwitch page, const Rivals& rivals)
{
    if (page == rivals.first)
        return rivals.second;
    return page == rivals.second ? rivals.first : nullptr;
}

} // namespace

const char* CaptionOf(DialogSwitch page)
{
    const auto* const found = std::ranges::find(kDialogChain, page, &DialogChainPage::isOn);
    return found != std::end(kDialogChain) ? found->caption : "";
}

bool LeadsTheChain(const DialogBoxes& pages, DialogSwitch page)
{
    const auto* const found = std::ranges::find(kDialogChain, page, &DialogChainPage::isOn);
    return std::none_of(std::begin(kDialogChain), found,
                        [&](const DialogChainPage& before) { return pages.*before.isOn != 0; });
}

bool PressDialogPage(DialogBoxes& pages, DialogSwitch page)
{
    const DialogSwitch rival = RivalOf(page, kAgreements);
    return rival && std::exchange(pages.*rival, Integer{0}) != 0;
}

void TickDialogPage(DialogBoxes& pages, DialogSwitch page, bool ticked)
{
    pages.*page = ticked ? 1 : 0;
    if (const DialogSwitch rival = RivalOf(page, kDestinations); rival && ticked)
        pages.*rival = 0;
}

} // namespace quillon
