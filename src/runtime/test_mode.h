// What the setup does when its author tries it from the tool: it reads its files, leads through its
// pages or shows its screen, and installs nothing. Nothing is written but the logs that are
// asked for.
#pragma once

#include "runtime/setup_program.h"

namespace quillon {

/// What a test shows, in words: for its log, and for the window of a preview.
struct TestWindow {
    Text title;              // names the project
    Text note;               // that nothing is installed
    Text heading;            // what the lines are
    std::vector<Text> lines; // the pages in their order, or what is on the screen
    Text close;              // the caption of the button
};

/// For a test of everything.
TestWindow DescribePages(const LoadedPackage& package);
/// For the preview of the screen behind the pages.
TestWindow DescribeScreen(const LoadedPackage& package);

/// Both INF files and the language file for a test, all but FILELIST.INF for a preview.
LoadedPackage LoadForTest(const FileSystem& files, const Text& folder, TestMode mode);

struct TestInput {
    Host& host;
    Target& target;
    Ask& ask;
    const Switches& switches;
    /// What the pages of a test are shown by; not called under /S.
    PageView& pages;
    /// Shows the window of a preview and waits for its end; not called under /S.
    std::function<void(const TestWindow& window)> show;
};

/// `package` takes what is chosen on its pages.
ExitCode RunTest(const TestInput& input, LoadedPackage& package);

} // namespace quillon
