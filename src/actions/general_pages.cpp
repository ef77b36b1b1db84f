#include "actions/general_pages.h"

#include <algorithm>
#include <cassert>
#include <iterator>

namespace quillon {

const GeneralPage& GeneralPageOf(DialogSwitch isOn)
{
    const auto* const page = std::ranges::find(kGeneralPages, isOn, &GeneralPage::isOn);
    assert(page != std::end(kGeneralPages));
    return *page;
}

} // namespace quillon
