#include "platform/posix/name_lookup.h"

#include "helpers/text.h"

#include <algorithm>
#include <cstdint>
#include <dirent.h>
#include <memory>

namespace quillon {

namespace {

constexpr std::size_t kMaxCachedNames = 300000;
constexpr std::int64_t kMillisecond = 1000000;
constexpr std::int64_t kSecond = 1000 * kMillisecond;

// A folder's stamp moves in ticks of the kernel's clock, of at most 10 ms, and on some file systems
// in whole seconds or two. Two changes within a tick look like one.
constexpr std::int64_t kTickOfTheKernel = 20 * kMillisecond;
constexpr std::int64_t kTickOfWholeSeconds = 2 * kSecond + kTickOfTheKernel;

// While this program fills a folder, the stamp changes all the time and can't show another
// program's change; the listing is then renewed at intervals, which are long enough that listing a
// large folder takes only a small part of the time.
constexpr std::int64_t kRenewWhileFilling = 100 * kMillisecond;
constexpr std::int64_t kListingTimesToWait = 20;

std::int64_t Nanoseconds(const timespec& time)
{
    return static_cast<std::int64_t>(time.tv_sec) * kSecond + time.tv_nsec;
}

timespec Now()
{
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    return now;
}

bool Exists(const std::string& path)
{
    struct stat status {};
    return lstat(path.c_str(), &status) == 0;
}

std::string FolderOf(const std::string& path)
{
    return path.substr(0, path.rfind('/'));
}

} // namespace

bool NameLookup::Stamp::operator==(const Stamp& other) const
{
    return device == other.device && node == other.node &&
           Nanoseconds(modified) == Nanoseconds(other.modified) &&
           Nanoseconds(changed) == Nanoseconds(other.changed);
}

void NameLookup::Listing::Add(const std::string& name)
{
    std::vector<std::string>& spellings = names[LowerCase(name)];
    const auto place = std::lower_bound(spellings.begin(), spellings.end(), name);
    if (place == spellings.end() || *place != name)
        spellings.insert(place, name);
}

void NameLookup::Listing::Remove(const std::string& name)
{
    const auto found = names.find(LowerCase(name));
    if (found == names.end())
        return;
    std::erase(found->second, name);
    if (found->second.empty())
        names.erase(found);
}

bool NameLookup::Listing::IsFresh() const
{
    const std::int64_t age = Nanoseconds(Now()) - Nanoseconds(listedAt);
    const std::int64_t limit =
        std::max(kRenewWhileFilling, kListingTimesToWait * nanosecondsToList);
    return age >= 0 && age < limit;
}

std::optional<NameLookup::Stamp> NameLookup::StampOf(const std::string& folder)
{
    struct stat status {};
    if (stat(folder.empty() ? "/" : folder.c_str(), &status) != 0 || !S_ISDIR(status.st_mode))
        return std::nullopt;
    return Stamp{status.st_dev, status.st_ino, status.st_mtim, status.st_ctim};
}

bool NameLookup::IsStillGood(const Listing& listing, const Stamp& now)
{
    return listing.stamp == now && (listing.settled || (listing.changedByUs && listing.IsFresh()));
}

NameLookup::Listing NameLookup::ReadNames(const std::string& folder, const Stamp& stamp)
{
    Listing listing{.stamp = stamp, .listedAt = Now()};
    const bool wholeSeconds = stamp.modified.tv_nsec == 0;
    const std::int64_t tick = wholeSeconds ? kTickOfWholeSeconds : kTickOfTheKernel;
    listing.settled = Nanoseconds(listing.listedAt) - Nanoseconds(stamp.modified) > tick;

    const std::unique_ptr<DIR, int (*)(DIR*)> entries(
        opendir(folder.empty() ? "/" : folder.c_str()), closedir);
    while (const dirent* entry = entries ? readdir(entries.get()) : nullptr)
        listing.Add(entry->d_name);
    listing.nanosecondsToList = Nanoseconds(Now()) - Nanoseconds(listing.listedAt);
    return listing;
}

std::optional<std::string> NameLookup::Find(const std::string& folder, std::string_view name)
{
    const std::optional<Stamp> stamp = StampOf(folder);
    if (!stamp)
        return std::nullopt;

    const std::lock_guard lock(mutex_);
    auto kept = listings_.find(folder);
    if (kept == listings_.end() || !IsStillGood(kept->second, *stamp)) {
        if (keptNames_ > kMaxCachedNames) {
            listings_.clear();
            keptNames_ = 0;
        }
        kept = listings_.insert_or_assign(folder, ReadNames(folder, *stamp)).first;
        keptNames_ += kept->second.names.size();
    }
    const auto found = kept->second.names.find(LowerCase(name));
    if (found == kept->second.names.end())
        return std::nullopt;
    return found->second.front();
}

std::string NameLookup::Resolve(const std::string& root, const std::vector<std::string_view>& parts)
{
    std::string path = root;
    for (const std::string_view part : parts)
        path.append("/").append(part);

    // The exact spelling counts first on every level, so what exists of it is kept. It is sought
    // from the end: most often all of it exists, or all but the name.
    std::size_t kept = parts.size();
    for (; kept > 0 && !Exists(path); --kept)
        path.resize(path.size() - parts[kept - 1].size() - 1);

    bool isMissing = false;
    for (std::size_t i = kept; i < parts.size(); ++i) {
        const std::string exact = path + "/" + std::string(parts[i]);
        std::optional<std::string> found;
        if (!isMissing && (i == kept || !Exists(exact))) {
            found = Find(path, parts[i]);
            isMissing = !found;
        }
        path = found ? path + "/" + *found : exact;
    }
    return path;
}

NameLookup::Listing* NameLookup::ListingToChange(const std::string& folder)
{
    const auto kept = listings_.find(folder);
    if (kept == listings_.end())
        return nullptr;
    const std::optional<Stamp> stamp = StampOf(folder);
    if (!stamp || !kept->second.IsFresh()) {
        listings_.erase(kept);
        return nullptr;
    }
    kept->second.stamp = *stamp;
    kept->second.settled = false;
    kept->second.changedByUs = true;
    return &kept->second;
}

void NameLookup::NoteCreated(const std::string& path)
{
    const std::lock_guard lock(mutex_);
    const std::string folder = FolderOf(path);
    if (Listing* listing = ListingToChange(folder))
        listing->Add(path.substr(folder.size() + 1));
}

void NameLookup::NoteRemoved(const std::string& path)
{
    const std::lock_guard lock(mutex_);
    const std::string folder = FolderOf(path);
    if (Listing* listing = ListingToChange(folder))
        listing->Remove(path.substr(folder.size() + 1));
}

} // namespace quillon
