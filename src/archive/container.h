// The archive that holds a package's files, whatever its format.
#pragma once

#include "archive/zip_reader.h"

namespace quillon {

class Container {
public:
    virtual ~Container() = default;

    virtual const std::vector<ZipEntry>& Entries() const = 0;
    /// As `ZipReader::Extract`.
    virtual void Extract(const ZipEntry& entry, const Text& password,
                         const ZipReader::Sink& sink) = 0;
};

} // namespace quillon
