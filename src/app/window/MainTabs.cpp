#include "app/window/MainTabs.h"

#include "app/history/edit_name.h"
#include "shell/command_table.h"
#include "ui/qt_text.h"

#include <algorithm>

namespace quillon {

namespace {

/// That of the tab's command, without its access letter: the menu has the keys.
QString CaptionOf(Tab tab)
{
    return ToQt("  " + EditName(FindCommand(CommandOf(tab))->caption) + "  ");
}

} // namespace

MainTabs::MainTabs(const std::array<QWidget*, kTabCount>& pages) : pages_(pages)
{
    setObjectName("MainTab");
    for (std::size_t i = 0; i < pages_.size(); ++i)
        addTab(pages_[i], CaptionOf(static_cast<Tab>(i)));
}

void MainTabs::ShowTab(Tab tab, bool isShown)
{
    if (isShown == IsShown(tab))
        return;
    const auto number = static_cast<std::size_t>(tab);
    if (isShown) {
        insertTab(PlaceFor(tab), pages_[number], pictures_[number], CaptionOf(tab));
    } else {
        const int place = indexOf(pages_[number]);
        pictures_[number] = tabIcon(place);
        removeTab(place);
    }
}

Tab MainTabs::Selected() const
{
    const auto selected = std::ranges::find(pages_, currentWidget());
    return static_cast<Tab>(selected - pages_.begin());
}

/// After the tabs in front of it that are shown.
int MainTabs::PlaceFor(Tab tab) const
{
    const auto* const end = pages_.begin() + static_cast<int>(tab);
    return static_cast<int>(
        std::count_if(pages_.begin(), end, [this](QWidget* page) { return indexOf(page) >= 0; }));
}

} // namespace quillon
