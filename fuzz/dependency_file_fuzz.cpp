// Dependency files and setup lists of any content: whatever the bytes lead to is added or refused
// in bounded time, each file once, and nothing but a RunError is thrown.
#include "importers/dependency_file.h"
#include "importers/lst_file.h"
#include "require.h"

#include "support/one_file_host.h"

#include <set>
#include <utility>

using namespace quillon;

namespace {

void FollowDepFile(Host host, const std::string& bytes)
{
    test::SilentUser user;
    FileList list;
    {
        FileAdding adding(list, host, user);
        DependencyFiles files(adding, host, user);
        const DepSection section{"C:\\a.dep", "a.ocx", "C:\\A\\B", "%SYSDIR"};
        Require(files.AddFilesToFileListViaDepFile(section));
        files.AddWithSecondLevel(section);
    }
    // Each row has its line, and what a line names is in the list once.
    Require(list.rows.size() <= bytes.size());
    std::set<std::pair<Text, Text>> added;
    for (const FileListRow& row : list.rows)
        Require(added.insert({row[Filename], row[Source]}).second);
}

void CompareLstFile(const FileSystem& files)
{
    const auto missing = MissingFromFileList(files, "C:\\a.lst", {});
    if (!missing)
        return;
    std::vector<FileListRow> rows;
    for (const Text& name : *missing)
        rows.emplace_back()[Filename] = name;
    const auto again = MissingFromFileList(files, "C:\\a.lst", rows);
    Require(again && again->empty());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    test::OneFile files(std::string(reinterpret_cast<const char*>(bytes), size));
    test::PlainMachine machine;
    FollowDepFile({files, machine}, files.bytes);
    CompareLstFile(files);
    return 0;
}
