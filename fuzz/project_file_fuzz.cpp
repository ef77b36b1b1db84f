// Project files of any content: reading comes to an end, and whatever came in can be saved, unless
// it is more than a project file holds, and loaded again.
#include "project/new_project.h"
#include "project/project_file.h"
#include "support/one_file_host.h"

#include <cstdlib>

using namespace quillon;

namespace {

constexpr const char* kPath = "C:\\a.qnp";
constexpr const char* kToolFolder = "C:\\Quillon";

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    test::OneFile files(std::string(reinterpret_cast<const char*>(bytes), size));
    test::PlainMachine machine;
    test::SilentUser user;
    Host host{files, machine};
    Project project;
    OpenProjectState state;
    ResetToNewProject(project, state, kToolFolder);

    ReadProjectFile(project, kPath, host, user, kToolFolder);
    Require(project.Files.rows.size() <= kMostRows);

    const int error = RunErrorNumber([&] { WriteProjectFile(project, kPath, host, user); });
    Require(error == ErrorNumber::kNone || error == ErrorNumber::kOverflow ||
            error == ErrorNumber::kSubscriptOutOfRange);
    Require((error == ErrorNumber::kNone) == files.bytes.ends_with("-(EOF)-\r\n\r\n"));

    Project again;
    Require(ReadProjectFile(again, kPath, host, user, kToolFolder) != ReadEnd::Refused);
    Require(again.Media.TargetMedia == project.Media.TargetMedia);
    return 0;
}
