// The file in which the text of the RTF box is kept, and what it is called.
#pragma once

#include "platform/ask.h"

namespace quillon {

/// The name that the editor proposes for a box without a file: the project's own with "rtf" behind
/// its point. Kept: an unsaved project has no ".qnp" to find, and is given "rtf" alone.
Text ProposedRTFfilename(const Text& projectFileName);

/// The name under which the text is stored: one without ".rtf" anywhere gets it.
Text StoredRTFfilename(const Text& typed);

/// Whether OK may close the editor; tells the user where not.
bool CheckRTFfilename(const Text& typed, Ask& ask);

} // namespace quillon
