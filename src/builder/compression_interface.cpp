#include "builder/compression_interface.h"

#include "archive/solid/writer/solid_container_writer.h"
#include "archive/writer/spanned_archive.h"
#include "archive/writer/zip_writer.h"
#include "archive/zip_records.h"
#include "builder/compression_log.h"
#include "builder/progress_display.h"
#include "builder/responsive_copy.h"
#include "builder/temporary_file.h"
#include "formats/container_names.h"
#include "formats/served_rows.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"

#include <algorithm>
#include <limits>
#include <unordered_map>
#include <vector>

namespace quillon {

namespace {

constexpr std::size_t kMaxCommentLength = 0xFFFF;

/// What is the same for two spellings of one path.
Text PathKey(const Text& path)
{
    const bool hasDrive = path.size() >= 2 && path[1] == ':';
    return LowerCase(path.substr(0, hasDrive ? 2 : 0)) + ContainerEntryName(path);
}

/// A date as an entry keeps it.
LocalTime DateInArchive(const LocalTime& time)
{
    return zip::FromDosTime(zip::DosDate(time), zip::DosTime(time));
}

/// The rows of a file whose entry has another one's date.
Text RowsWithDate(const Text& rows, const LocalTime& modified)
{
    Text dated;
    for (std::size_t begin = 0; begin < rows.size();) {
        const std::size_t end = std::min(rows.find(' ', begin), rows.size());
        dated.append(dated.empty() ? "" : " ")
            .append(RowWithDate(rows.substr(begin, end - begin), modified));
        begin = end + 1;
    }
    return dated;
}

} // namespace

struct CompressionInterface::State {
    struct Item {
        Text path;
        Text rows;
    };
    struct Order {
        Text target;
        bool spans = false;
        bool namesOnly = false;
        bool isSolid = false;
        Text password;
    };

    Host& host;
    Ask& ask;
    DiskSource& disks;
    Text workPath;
    bool logs = false;
    bool deflates = true;
    std::vector<Item> items = {};
    std::unordered_map<Text, std::size_t> itemOfPath = {};
    Integer disksUsed = 0;
    std::vector<Sha256Digest> pieceDigests = {};
    std::optional<CompressionFailure> failure = {};

    void Add(const Text& path, const Text& row);
    Integer Create(const Order& order);

private:
    void Make(const Order& order, CompressionLog& log);
    Text FolderForUnfinished(const Order& order) const;
    static std::optional<Text> Share(std::vector<Text>& rows, std::size_t first, std::size_t repeat,
                                     bool isSameDate, const LocalTime& date);
    std::vector<ZipSource> Sources(const Order& order) const;
    void Pack(const Order& order, OutputFile& unfinished, CompressionLog& log);
    void Deliver(const Order& order, const Text& finished);
    void MoveIntoPlace(const Text& finished, const Text& target);
};

// A comment has an end. Where so many rows share one source that their names don't fit, the source
// is stored once more for the rest of them.
void CompressionInterface::State::Add(const Text& path, const Text& row)
{
    const auto [found, isNew] = itemOfPath.try_emplace(PathKey(path), items.size());
    if (!isNew) {
        Text& rows = items[found->second].rows;
        if (rows.size() + 1 + row.size() <= kMaxCommentLength) {
            if (!row.empty())
                rows.append(rows.empty() ? "" : " ").append(row);
            return;
        }
        found->second = items.size();
    }
    items.push_back({path, row});
}

Integer CompressionInterface::State::Create(const Order& order)
{
    disksUsed = 0;
    pieceDigests.clear();
    failure.reset();
    CompressionLog log;
    try {
        Make(order, log);
    } catch (const CompressionFailure& reason) {
        failure = reason;
    } catch (const RunError& error) {
        failure.emplace(ResultOfWriting(error), error.Path());
    }
    const Integer result = failure ? failure->Result() : CompressionResult::kDone;
    if (logs && !items.empty())
        log.Write(host, order.target, result);
    return result;
}

void CompressionInterface::State::Make(const Order& order, CompressionLog& log)
{
    if (items.empty())
        throw CompressionFailure(CompressionResult::kNothingToDo, {});
    TemporaryFile unfinished(host, FolderForUnfinished(order));
    try {
        Pack(order, unfinished.Output(), log);
    } catch (const CompressionFailure& source) {
        log.AddFailure(source.Path(), source.Result());
        throw;
    }
    Deliver(order, unfinished.Path());
}

// An archive that shall not be cut grows beside its target, where it only needs a new name at the
// end.
Text CompressionInterface::State::FolderForUnfinished(const Order& order) const
{
    if (!workPath.empty())
        return workPath;
    return order.spans ? host.machine.GetTempDir() : ExtractDirectory(order.target);
}

// Rows of files with the same bytes share an entry, as far as its comment has room. A file without
// rows is found by its name, and so has its own.
std::optional<Text> CompressionInterface::State::Share(std::vector<Text>& rows, std::size_t first,
                                                       std::size_t repeat, bool isSameDate,
                                                       const LocalTime& date)
{
    if (rows[first].empty() || rows[repeat].empty())
        return {};
    const Text more = isSameDate ? rows[repeat] : RowsWithDate(rows[repeat], date);
    if (rows[first].size() + 1 + more.size() > kMaxCommentLength)
        return {};
    return rows[first].append(" ").append(more);
}

std::vector<ZipSource> CompressionInterface::State::Sources(const Order& order) const
{
    std::vector<ZipSource> sources;
    sources.reserve(items.size());
    for (const Item& item : items) {
        const Text name = ContainerEntryName(item.path);
        const std::size_t folderEnd = order.namesOnly ? name.rfind('/') : Text::npos;
        sources.push_back(
            {item.path, folderEnd == Text::npos ? name : name.substr(folderEnd + 1), item.rows});
    }
    return sources;
}

void CompressionInterface::State::Pack(const Order& order, OutputFile& unfinished,
                                       CompressionLog& log)
{
    ProgressDisplay progress(ask);
    std::vector<Text> rows;
    for (const Item& item : items)
        rows.push_back(item.rows);
    const ZipWatch watch{
        .onEqual =
            [&](std::size_t first, std::size_t repeat, const LocalTime& firstDate,
                const LocalTime& repeatDate) {
                const LocalTime date = DateInArchive(repeatDate);
                return Share(rows, first, repeat, DateInArchive(firstDate) == date, date);
            },
        .onEntry = [&](const ZipEntryReport& entry) { log.AddEntry(entry); },
        .onProgress = [&](std::uint64_t bytes, std::uint64_t all) { progress.Show(bytes, all); },
        .processEvents = [&] { ask.ProcessEvents(); }};
    if (order.isSolid)
        WriteSolidContainer(host.files, Sources(order), unfinished, {}, watch);
    else
        WriteZip(host.files, Sources(order), unfinished,
                 {.deflate = deflates, .password = order.password}, watch);
    unfinished.Close();
}

void CompressionInterface::State::Deliver(const Order& order, const Text& finished)
{
    if (!order.spans) {
        MoveIntoPlace(finished, order.target);
        return;
    }
    ProgressDisplay progress(ask);
    const Spanning spanning = CutOntoDisks(host.files, finished, order.target, disks,
                                           [&](std::uint64_t done, std::uint64_t total) {
                                               progress.Show(done, total);
                                               ask.ProcessEvents();
                                           });
    disksUsed = spanning.disksUsed;
    pieceDigests = spanning.digests;
    if (spanning.result != CompressionResult::kDone)
        throw CompressionFailure(spanning.result, spanning.path);
    if (disksUsed > 1 && !disks.FirstDiskAgain())
        throw CompressionFailure(CompressionResult::kCancelled, {});
}

// A file can't be renamed onto another disk; there it is copied.
void CompressionInterface::State::MoveIntoPlace(const Text& finished, const Text& target)
{
    FileSystem& files = host.files;
    if (files.FileExists(target))
        files.RemoveFile(target);
    if (RunErrorNumber([&] { files.Rename(finished, target); }) == ErrorNumber::kNone)
        return;
    try {
        CopyResponsively(files, ask, finished, target);
    } catch (const RunError&) {
        RunErrorNumber([&] {
            if (files.FileExists(target))
                files.RemoveFile(target);
        });
        throw;
    }
}

CompressionInterface::CompressionInterface(Host& host, Ask& ask, DiskSource& disks)
    : state_(new State{host, ask, disks, {}})
{
}

CompressionInterface::~CompressionInterface() = default;

void CompressionInterface::IfcInitDynaZipStruct(const Text& workPath, Integer logFlag,
                                                Integer level)
{
    state_->workPath = RemoveLastBackslash(workPath);
    state_->logs = logFlag == 1;
    state_->deflates = level > 0;
}

void CompressionInterface::IfcResetFileList()
{
    state_->items.clear();
    state_->itemOfPath.clear();
}

Integer CompressionInterface::IfcAddFileListItem(const Text& path, const Text& row)
{
    if (ContainerEntryName(path).empty())
        return 0;
    state_->Add(path, row);
    return 1;
}

void CompressionInterface::Sort(bool (*isBefore)(const Text& left, const Text& right))
{
    std::ranges::stable_sort(state_->items, isBefore, &State::Item::path);
    // Nothing is added after it.
    state_->itemOfPath.clear();
}

Integer CompressionInterface::IfcCreateZipFile(const Text& target, Integer floppySpanning,
                                               const Text& password)
{
    return state_->Create({.target = target, .spans = floppySpanning != 0, .password = password});
}

Integer CompressionInterface::IfcCreateDesignZipFile(const Text& target)
{
    return state_->Create({.target = target, .namesOnly = true});
}

Integer CompressionInterface::IfcCreateSolidFile(const Text& target)
{
    return state_->Create({.target = target, .isSolid = true});
}

Integer CompressionInterface::IfcGetNrFloppiesUsed() const
{
    return state_->disksUsed;
}

const std::vector<Sha256Digest>& CompressionInterface::PieceDigests() const
{
    return state_->pieceDigests;
}

void CompressionInterface::IfcFreeFileList()
{
    IfcResetFileList();
}

const std::optional<CompressionFailure>& CompressionInterface::LastFailure() const
{
    return state_->failure;
}

} // namespace quillon
