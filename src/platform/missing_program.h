// A failure to start something because the program that runs it is not on this machine.
#pragma once

#include "platform/run_error.h"

namespace quillon {

class MissingProgram : public RunError {
public:
    /// `name` is what the user would have to install.
    MissingProgram(Text name, const Text& path)
        : RunError(ErrorNumber::kCannotStart, path), name_(std::move(name))
    {
    }

    const Text& Name() const { return name_; }

private:
    Text name_;
};

} // namespace quillon
