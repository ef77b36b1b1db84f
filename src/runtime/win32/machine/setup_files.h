// The files of the machine as the setup and the uninstaller change them.
#pragma once

#include "platform/win32/win_files.h"
#include "runtime/brief_holds.h"

namespace quillon {

/// Outlasts those who hold a file for a moment.
class SetupFiles : public WinFiles {
public:
    SetupFiles();

    void RemoveFile(const Text& path) override;
    void RemoveFolder(const Text& path) override;
    void Rename(const Text& from, const Text& to) override;
    void Replace(const Text& from, const Text& to) override;

private:
    BriefHolds holds_;
};

} // namespace quillon
