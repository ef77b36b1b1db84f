// Runs other programs for a part of the work, to their end, and returns their output.
#pragma once

#include "helpers/text.h"

#include <functional>
#include <memory>
#include <vector>

namespace quillon {

struct ProgramArgument {
    enum class Kind {
        Plain,
        Path,       // a Windows path, which the program gets as a path of its own machine
        InputAsFile // the name by which the program finds its standard input among the files
    };

    Text text;
    Kind kind = Kind::Plain;

    bool operator==(const ProgramArgument&) const = default;
};

struct ProgramOrder {
    Text program; // a name that is looked up in PATH
    std::vector<ProgramArgument> arguments;
    // What the program reads on its standard input, at most `kMaxProgramInput` bytes. It goes over
    // a pipe: it is in no file and in no list of processes.
    Text input;
    int maxSeconds = 0; // then the program is ended
};

inline constexpr std::size_t kMaxProgramInput = 4096;

struct ProgramOutcome {
    int exitCode = -1; // -1 also where the program was ended before its time
    Text output;       // of both channels; the end of a long one is cut
    bool tookTooLong = false;
};

/// A private folder of this user. It is removed with all that is in it.
class WorkFolder {
public:
    virtual ~WorkFolder() = default;

    virtual const Text& Path() const = 0;
};

class ProgramRunner {
public:
    virtual ~ProgramRunner() = default;

    virtual bool IsInstalled(const Text& program) const = 0;
    /// Throws `RunError` where the program can't be started. `onWait` is called several times a
    /// second while it runs.
    virtual ProgramOutcome Run(const ProgramOrder& order, const std::function<void()>& onWait) = 0;
    /// Throws `RunError` where there is no room for one.
    virtual std::unique_ptr<WorkFolder> MakeWorkFolder() = 0;
};

} // namespace quillon
