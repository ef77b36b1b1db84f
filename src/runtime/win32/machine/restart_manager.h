// Which programs hold which files, by Windows' Restart Manager, from Windows Vista on.
#pragma once

#include "runtime/file_users.h"

#include <windows.h>

#include <restartmanager.h>

namespace quillon {

class RestartManager : public FileUsers {
public:
    /// Which of the programs that were closed are started again in the end, where they can be.
    enum class StartsAgain { All, NotNamedOnes };
    explicit RestartManager(StartsAgain startsAgain) : startsAgain_(startsAgain) {}
    ~RestartManager() override;
    RestartManager(const RestartManager&) = delete;
    RestartManager& operator=(const RestartManager&) = delete;

    bool IsHeld(const Text& path) const override;
    std::vector<Text> ProgramsHolding(const std::vector<Text>& files) override;
    bool CloseThem() override;

private:
    bool Begin();
    void End();
    void LeaveEnded(const std::vector<std::wstring>& programs) const;
    std::vector<RM_PROCESS_INFO> Listed() const;

    const StartsAgain startsAgain_;
    HMODULE library_ = nullptr;
    DWORD session_ = 0;
    bool isOpen_ = false;
    bool hasClosed_ = false;
};

} // namespace quillon
