// A workshop for tests of the whole program: a tool folder of its own with a runtime that is only
// names, sources on drive S:, and projects.
#pragma once

#include "project/records.h"
#include "support/run_program.h"
#include "support/temp_folder.h"

#include <initializer_list>
#include <nlohmann/json.hpp>

namespace quillon::test {

using Json = nlohmann::ordered_json;

class Workshop : public testing::Test {
protected:
    Workshop();

    /// A new project with a name, a main folder and a row for each source on drive S:, which is the
    /// folder "src". A name that ends in "\" is an empty folder to make.
    Project MakeProject(std::initializer_list<Text> sources) const;
    /// Saves it as a file of the workshop; the host path comes back.
    std::string Save(Project project, const std::string& name = "p.qnp") const;
    std::string SaveProjectOf(std::initializer_list<Text> sources) const
    {
        return Save(MakeProject(sources));
    }

    ProgramRun Quillonc(std::vector<std::string> words, RunAs user = RunAs::Self) const;
    /// The same with nothing but what `create` needs.
    ProgramRun Create(const std::string& project, std::vector<std::string> more = {}) const;
    /// The object that a call prints with --json; a test failure where it prints anything else.
    static Json ObjectOf(const ProgramRun& run);
    /// The names in a folder of the workshop, in byte order.
    std::vector<std::string> Names(const std::string& folder) const;

    TempFolder disk;
    std::string out = disk.Path("out"); // where packages go; a new, empty folder
    std::map<std::string, std::string> environment;
};

} // namespace quillon::test
