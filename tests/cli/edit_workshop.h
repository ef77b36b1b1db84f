// A workshop for the calls that change a project, with sources to add.
#pragma once

#include "workshop.h"

#include "helpers/text.h"

namespace quillon::test {

class EditWorkshop : public Workshop {
protected:
    EditWorkshop();

    /// A call on the project "p.qnp" of the workshop.
    ProgramRun Edit(std::vector<std::string> words, RunAs user = RunAs::Self) const;
    /// The same for a call that has to succeed; returns what it prints.
    std::string Done(std::vector<std::string> words) const;
    /// The same with --json.
    Json DoneAsObject(std::vector<std::string> words) const;

    /// The call ends with this code and this message, and the project and its folder are unchanged,
    /// with their dates.
    void ExpectRefused(const std::vector<std::string>& words, int exitCode, const std::string& err,
                       RunAs user = RunAs::Self) const;
    /// The call succeeds and leaves the project as it is.
    void ExpectUntouched(const std::vector<std::string>& words) const;

    /// The project as `quillonc show` prints it.
    Json Show() const;
    /// Column `column` of each row.
    std::vector<std::string> Rows(std::size_t column) const;

    std::string project = disk.Path("p.qnp");
};

} // namespace quillon::test
