// The programs that hold files open, as the system lists them.
#pragma once

#include "helpers/text.h"

#include <vector>

namespace quillon {

class FileUsers {
public:
    virtual ~FileUsers() = default;

    /// Whether a program holds the file so that it can't be replaced now. False where there is no
    /// such file.
    virtual bool IsHeld(const Text& path) const = 0;
    /// The programs that hold these files, by the names that their users know; none where the
    /// system can't say.
    virtual std::vector<Text> ProgramsHolding(const std::vector<Text>& files) = 0;
    /// Asks the programs of the last answer to end; false where one goes on running.
    virtual bool CloseThem() = 0;
};

} // namespace quillon
