// The order of the house, read off the includes, and planted violations that it has to find.
#include "house/layering.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <regex>
#include <set>

namespace quillon::test {

namespace {

namespace fs = std::filesystem;

const fs::path kRoot = fs::path(QUILLON_TEST_DATA).parent_path();

std::vector<Include> ReadIncludes()
{
    static const std::regex line(R"(^\s*#\s*include\s*([<"])([^>"]+)[>"])");
    std::vector<Include> includes;
    for (const auto& entry : fs::recursive_directory_iterator(kRoot / "src")) {
        const std::string extension = entry.path().extension().string();
        if (extension != ".h" && extension != ".cpp")
            continue;
        std::ifstream file(entry.path());
        std::smatch match;
        for (std::string text; std::getline(file, text);)
            if (std::regex_search(text, match, line))
                includes.push_back({fs::relative(entry.path(), kRoot / "src").generic_string(),
                                    match[2], match[1] == "<"});
    }
    return includes;
}

std::string Contributing()
{
    std::ifstream file(kRoot / "docs" / "CONTRIBUTING.md");
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(House, KeepsItsOrder)
{
    const std::vector<Include> includes = ReadIncludes();
    ASSERT_GT(includes.size(), 1000U);
    for (const Include& include : includes) {
        EXPECT_TRUE(HasLayer(include.file)) << include.file << " is in a folder of no layer";
        for (const std::string& violation : Violations(include))
            ADD_FAILURE() << violation;
    }
}

TEST(House, FindsPlantedViolations)
{
    const Include planted[] = {
        {"helpers/text.cpp", "platform/ask.h"},
        {"project/records.h", "formats/scramble.h"},
        {"archive/zip_reader.cpp", "ini/profile_lines.h"},
        {"actions/ini_list.cpp", "importers/lst_file.h"},
        {"filelist/components.cpp", "filelist/forms/DlgIcon.h"},
        {"actions/ini_list.cpp", "actions/forms/pages/PageEditor.h"},
        {"shell/session.cpp", "ui/kit/Form.h"},
        {"builder/forms/DlgCreate.cpp", "app/MainForm.h"},
        {"cli/main.cpp", "platform/posix/posix_host.h"},
        {"app/main.cpp", "platform/posix/signals.h"},
        {"runtime/install/install.cpp", "platform/win32/wide_text.h"},
        {"platform/whole_file.cpp", "platform/posix/posix_files.h"},
        {"runtime/install/install.cpp", "filelist/components.h"},
        {"runtime/package/container.cpp", "archive/writer/zip_writer.h"},
        {"runtime/package/container.cpp", "archive/solid/writer/solid_writer.h"},
        {"builder/create.cpp", "QString", true},
        {"cli/show_call.cpp", "QtWidgets/QWidget", true},
        {"formats/package.cpp", "windows.h", true},
        {"platform/whole_file.cpp", "sys/stat.h", true},
        {"platform/win32/open_file.cpp", "unistd.h", true},
        {"runtime/install/install.cpp", "sstream", true},
        {"runtime/install/install.cpp", "dlfcn.h", true},
        {"builder/create.cpp", "zstd.h", true},
        {"runtime/log/action_log.cpp", "nlohmann/json.hpp", true},
    };
    for (const Include& include : planted)
        EXPECT_FALSE(Violations(include).empty()) << include.file << " includes " << include.target;
}

TEST(House, LetsThroughWhatIsInOrder)
{
    const Include sound[] = {
        {"platform/this_host.h", "platform/posix/posix_host.h"},
        {"platform/posix/posix_host.h", "platform/posix/posix_machine.h"},
        {"filelist/forms/DlgIcon.cpp", "filelist/components.h"},
        {"filelist/forms/DlgIcon.cpp", "ui/kit/Form.h"},
        {"runtime/win32/machine/win_target.cpp", "platform/win32/wide_text.h"},
        {"ui/dialogs/QtAsk.cpp", "QWidget", true},
        {"platform/posix/posix_files.cpp", "sys/stat.h", true},
        {"builder/create.cpp", "algorithm", true},
        {"archive/zip_reader.cpp", "zlib.h", true},
        {"ui/look/colour_scheme.cpp", "QtDBus/QDBusMessage", true},
    };
    for (const Include& include : sound)
        EXPECT_TRUE(Violations(include).empty()) << include.file << " includes " << include.target;
}

TEST(Contributing, NamesEveryFolder)
{
    const std::string text = Contributing();
    // One row for all of a kind, with what is below them.
    const std::set<std::string> kinds = {"forms", "posix", "win32", "program"};
    std::set<std::string> folders;
    for (auto entry = fs::recursive_directory_iterator(kRoot / "src");
         entry != fs::recursive_directory_iterator(); ++entry) {
        if (!entry->is_directory())
            continue;
        if (kinds.contains(entry->path().filename().string()))
            entry.disable_recursion_pending();
        else
            folders.insert(fs::relative(entry->path(), kRoot).generic_string());
    }
    ASSERT_GT(folders.size(), 25U);
    for (const std::string& folder : folders)
        EXPECT_NE(text.find("| `" + folder + "` |"), std::string::npos)
            << "the table lacks " << folder;
}

TEST(Contributing, NamesEveryFolderOfTheRoot)
{
    const std::string text = Contributing();
    for (const auto& entry : fs::directory_iterator(kRoot)) {
        const std::string name = entry.path().filename().string();
        if (!entry.is_directory() || name.starts_with('.') || name == "build" || name == "src")
            continue;
        EXPECT_NE(text.find("`" + name + "`"), std::string::npos) << "the table lacks " << name;
    }
}

TEST(Contributing, GivesTheChainInTheOrderOfTheTest)
{
    const std::string text = Contributing();
    const std::size_t begin = text.find("Dependencies point one way: ");
    ASSERT_NE(begin, std::string::npos);
    const std::string chain = text.substr(begin, text.find("\n\n", begin) - begin);
    std::size_t below = 0;
    for (const std::vector<std::string>& layer : Layers()) {
        std::size_t highest = below;
        for (const std::string& folder : layer) {
            if (!fs::exists(kRoot / "src" / folder))
                continue;
            const std::size_t position = chain.find("`" + folder + "`");
            ASSERT_NE(position, std::string::npos) << "the chain lacks " << folder;
            EXPECT_GE(position, below) << folder << " comes too early in the chain";
            highest = std::max(highest, position);
        }
        below = highest;
    }
}

} // namespace

} // namespace quillon::test
