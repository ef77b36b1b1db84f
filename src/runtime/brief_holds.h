// Virus scanners and indexers hold a file for a moment after it was written. What can't be done to
// it then is tried again before anything is undone or left to the machine's next start.
#pragma once

#include "platform/run_error.h"

#include <functional>
#include <utility>

namespace quillon {

class BriefHolds {
public:
    /// `sleep` gets milliseconds.
    explicit BriefHolds(std::function<void(int)> sleep) : sleep_(std::move(sleep)) {}

    /// Does the work, again after a pause where `mayBeBrief` says so of the failure's number.
    /// Throws what the last try threw.
    template <class Work>
    void Outlast(bool (*mayBeBrief)(int number), Work work)
    {
        for (const int pause : {20, 50, 100, 200}) {
            try {
                work();
                patience_ = kPatience;
                return;
            } catch (const RunError& error) {
                if (!mayBeBrief(error.Number()) || patience_ < pause)
                    throw;
            }
            sleep_(pause);
            patience_ -= pause;
        }
        work();
        patience_ = kPatience;
    }

    static bool OfFile(int number)
    {
        return number == ErrorNumber::kFileInUse || number == ErrorNumber::kPermissionDenied;
    }
    /// A folder is not empty while a deleted file in it is still held.
    static bool OfFolder(int number)
    {
        return OfFile(number) || number == ErrorNumber::kPathFileAccess;
    }

private:
    // Milliseconds in vain, until something succeeds: files that programs really use would cost the
    // pauses each.
    static constexpr int kPatience = 1500;

    std::function<void(int)> sleep_;
    int patience_ = kPatience;
};

} // namespace quillon
