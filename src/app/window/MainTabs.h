// The tabs of the main window. One that the options hide is taken out of the row as a whole, so
// that neither keys, wheel nor painting come upon it.
#pragma once

#include "shell/main_window.h"

#include <QIcon>
#include <QTabWidget>
#include <array>

namespace quillon {

class MainTabs : public QTabWidget {
public:
    explicit MainTabs(const std::array<QWidget*, kTabCount>& pages);

    void ShowTab(Tab tab, bool isShown);
    bool IsShown(Tab tab) const { return indexOf(PageOf(tab)) >= 0; }

    Tab Selected() const;
    void Select(Tab tab) { setCurrentWidget(PageOf(tab)); }

private:
    QWidget* PageOf(Tab tab) const { return pages_[static_cast<std::size_t>(tab)]; }
    int PlaceFor(Tab tab) const;

    std::array<QWidget*, kTabCount> pages_;
    std::array<QIcon, kTabCount> pictures_; // of the tabs that are taken out
};

} // namespace quillon
