// How the uninstaller's own file goes. A running program can't be deleted, but it can be moved: out
// of the product's folder, so that the folder can go, into one that is closed to others. There a
// second copy of the program waits for this one's end and deletes what is left.
#pragma once

#include "runtime/uninstall.h"

#include <optional>

namespace quillon {

class SelfRemoval : public RunningProgram {
public:
    explicit SelfRemoval(Host& host) : host_(host) {}

    void MoveAway(const Text& uninstaller) override;
    void RemoveAfterEnd() override;

private:
    Host& host_;
    Text folder_; // where the program's file is now; empty where it has not been moved
};

/// What the second copy does; nothing where the command line asks for something else.
std::optional<int> CleanUpForParent(std::string_view commandLine);

} // namespace quillon
