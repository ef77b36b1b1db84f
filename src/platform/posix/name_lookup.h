// Finds names without regard to case on a file system that tells upper from lower case: the exact
// spelling first, then the one that differs in case alone, and of several the first in byte order.
//
// The constraints that shaped it:
//
// - Projects store source paths in lower case, so a look-up that misses the exact spelling is
//   common, and can only be answered by listing the folder. Listing it for each of its files is
//   quadratic.
// - A kept listing must never be wrong: a file that another program has just made has to be found.
//   A folder's time stamps (modified, changed) and identity say whether it changed, but in ticks:
//   10 ms on usual file systems, up to 2 s on those that store whole seconds. A listing counts as
//   settled only when it was made more than a tick after the last change; an unsettled one is made
//   again at the next look-up.
// - This program fills folders itself, and its own changes move the stamps. It notes them in the
//   listing (`NoteCreated`, `NoteRemoved`), which then counts for 100 ms, or for 20 times as long
//   as it took to list, so that listing stays below a twentieth of the work.
// - Memory: beyond 300,000 names all listings are dropped, and those still needed are made again.
//
// Rejected: inotify (not on network file systems, and events come late); trusting a listing for a
// fixed time (finds no file that was just made); storing the true case in the project (its format
// says lower case).
#pragma once

#include <cstdint>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <time.h>
#include <unordered_map>
#include <vector>

namespace quillon {

class NameLookup {
public:
    /// The path of `parts` below `root` (a host path without trailing slash) with the spelling that
    /// the disk has. Parts from the first missing one on keep the spelling given.
    std::string Resolve(const std::string& root, const std::vector<std::string_view>& parts);

    /// This program has made the file or folder at the host path.
    void NoteCreated(const std::string& path);
    /// This program has removed it.
    void NoteRemoved(const std::string& path);

private:
    struct Stamp {
        dev_t device;
        ino_t node;
        timespec modified;
        timespec changed;

        bool operator==(const Stamp& other) const;
    };
    struct Listing {
        // Lower case -> the spellings, in byte order.
        std::unordered_map<std::string, std::vector<std::string>> names;
        Stamp stamp;
        timespec listedAt;
        std::int64_t nanosecondsToList = 0;
        // Nothing had changed in the folder for long enough that its stamp shows the next change.
        bool settled = false;
        bool changedByUs = false;

        void Add(const std::string& name);
        void Remove(const std::string& name);
        bool IsFresh() const;
    };

    static std::optional<Stamp> StampOf(const std::string& folder);
    static bool IsStillGood(const Listing& listing, const Stamp& now);
    /// The listing of the folder that holds the path, if it may follow this program's own change.
    Listing* ListingToChange(const std::string& folder);
    static Listing ReadNames(const std::string& folder, const Stamp& stamp);
    std::optional<std::string> Find(const std::string& folder, std::string_view name);

    std::mutex mutex_;
    std::unordered_map<std::string, Listing> listings_; // by host path
    std::size_t keptNames_ = 0;
};

} // namespace quillon
