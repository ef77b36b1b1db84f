// A main window that records the calls that it gets.
#pragma once

#include "shell/main_window.h"

#include <string>

namespace quillon::test {

class FakeWindow : public MainWindow {
public:
    void ShowProject() override { calls.emplace_back("project"); }
    void ShowTitle() override { calls.emplace_back("title"); }
    void ShowRecentFiles() override { calls.emplace_back("recent"); }
    void ShowSettings() override { calls.emplace_back("settings"); }
    void ShowTab(Tab) override { calls.emplace_back("tab"); }
    void SelectTab(Tab tab) override
    {
        calls.emplace_back("select");
        selected = tab;
    }
    Tab SelectedTab() const override { return selected; }
    void ShowFileList(const std::vector<std::size_t>&) override { calls.emplace_back("list"); }
    std::vector<std::size_t> SelectedRows() const override { return {}; }
    void UpdateStatusBar() override { calls.emplace_back("status"); }

    std::vector<std::string> calls;
    Tab selected = Tab::Design;
};

} // namespace quillon::test
