// DYNAZIP.LOG in the Windows folder: for each archive a heading, a line for each of its files and
// the result.
#pragma once

#include "archive/writer/zip_writer.h"
#include "helpers/number_text.h"
#include "platform/host.h"

#include <vector>

namespace quillon {

class CompressionLog {
public:
    void AddEntry(const ZipEntryReport& entry);
    /// The file that ended the work.
    void AddFailure(const Text& path, Integer result);
    /// Appends what was added to the file. A log that has grown large is begun again.
    void Write(Host& host, const Text& target, Integer result);

private:
    std::vector<Text> lines_;
};

} // namespace quillon
