// The builder of self-extracting programs, by its numbered methods. What it answers is 0 for
// success, else the number that a status line shows.
#pragma once

#include "builder/selfextract/program_resources.h"
#include "builder/selfextract/self_extract_project.h"
#include "helpers/number_text.h"
#include "platform/ask.h"
#include "platform/host.h"
#include "platform/run_error.h"

#include <functional>

namespace quillon {

class ActiveDelivery {
public:
    /// What `Method10` answers where the icon can't be opened.
    static constexpr Long kNoIcon = 39;

    /// Windows starts no program of 4 GiB; a signature has room after it.
    static constexpr std::uint64_t kMaxProgramSize = 0xFFFFFFFF - 1024 * 1024;

    /// `extractor` is the program that stands before the payload; `standardIcon` is for a project
    /// that names none.
    ActiveDelivery(Host& host, Ask& ask, Text extractor, Text standardIcon,
                   std::uint64_t maxSize = kMaxProgramSize);

    /// Puts all files that match the pattern ("C:\Ut\*.*": those of a folder) into an archive,
    /// stored: what comes after packs them.
    void Method11(const Text& pattern, const Text& zipPath);
    /// Makes a new project file.
    Long Method1(const Text& projectPath);
    /// Sets an attribute that is a number.
    Long Method4(const Text& projectPath, Long attribute, Long value);
    /// Sets an attribute that is a text.
    Long Method6(const Text& projectPath, Long attribute, const Text& value);
    /// Builds the program that the project describes. Answers 6 for one that becomes too large, of
    /// which nothing is left.
    Long Method10(const Text& projectPath);

    /// What the machine could not do, of the last method that failed.
    const std::optional<RunError>& LastFailure() const { return failure_; }

private:
    Long Number(const std::function<void()>& work);
    void Archive(const Text& folder, const Text& zipPath);
    Long Build(const SelfExtractAttributes& attributes);
    std::optional<std::vector<ProgramResource>> Icon(const SelfExtractAttributes& attributes) const;

    Host& host_;
    Ask& ask_;
    Text extractor_;
    Text standardIcon_;
    std::uint64_t maxSize_;
    std::optional<RunError> failure_;
};

} // namespace quillon
