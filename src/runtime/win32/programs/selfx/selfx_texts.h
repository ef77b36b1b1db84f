// The texts of the self-extractor. They lie in a resource of the program, where the tool has put
// the part of the package's language file that is read before there is a package: they are needed
// before the payload is known to be whole.
#pragma once

#include "helpers/text.h"
#include "runtime/texts/self_extract_messages.h"

#include <string_view>

namespace quillon {

class SelfTexts {
public:
    SelfTexts();

    /// In Swedish where the resource lacks it, with `first` for "%1".
    Text operator()(const StarterMessage& message, std::string_view first = {}) const;

private:
    std::string_view bytes_;
};

/// A failure in a box with the program's own name over it; an answer into the standard output where
/// that is a file or a pipe, else in such a box.
void TellUser(const Text& text, bool isFailure);

} // namespace quillon
