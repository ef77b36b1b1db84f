// Whether a file is copied over one that is already there: what the letters of its copy options
// say, and nothing else. The reason of a refusal goes to the log.
#pragma once

#include "formats/copy_letters.h"
#include "helpers/date_text.h"
#include "runtime/texts/messages.h"

#include <optional>

namespace quillon {

struct ComparedFile {
    LocalTime modified;
    Text version; // "1, 2, 3, 4" or "1.2.3.4"; empty where the file has none
    bool isReadOnly = false;
};

enum class CopyVerdict { Copy, Keep, Ask };

struct CopyDecision {
    CopyVerdict verdict = CopyVerdict::Copy;
    std::optional<Reason> reason; // why the existing file is kept
};

CopyDecision DecideCopy(std::string_view options, const ComparedFile& existing,
                        const ComparedFile& ours);

/// Negative, zero or positive; parts that are missing count as 0.
int CompareVersions(std::string_view left, std::string_view right);

} // namespace quillon
