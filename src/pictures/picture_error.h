// A picture file that can't be shown: as a failure with the number that users and callers know, and
// as a text.
#pragma once

#include "pictures/picture_file.h"
#include "platform/run_error.h"

namespace quillon {

class PictureError : public RunError {
public:
    PictureError(PictureFault fault, const Text& file);

    PictureFault Fault() const { return fault_; }

private:
    PictureFault fault_;
};

/// The failure that ends the work; nothing where it comes to its end.
template <class Work>
std::optional<PictureError> PictureErrorOf(Work work)
{
    try {
        work();
        return {};
    } catch (const PictureError& error) {
        return error;
    }
}

/// A sentence that names the file and says what is wrong with it.
Text PictureFaultText(PictureFault fault, const Text& file);

/// A sentence for the user who chose the file: what to do.
Text PictureFaultAdvice(PictureFault fault);

} // namespace quillon
