// A package's archive as the setup sees it. In a package it is read through the library that
// travels with it; the tests read it directly.
#pragma once

#include "archive/zip_reader.h"

#include <functional>
#include <memory>

namespace quillon {

class Container {
public:
    virtual ~Container() = default;

    virtual const std::vector<ZipEntry>& Entries() const = 0;
    /// As `ZipReader::Extract`.
    virtual void Extract(const ZipEntry& entry, const Text& password,
                         const ZipReader::Sink& sink) = 0;
};

/// Throws `ZipError`, or `RunError` when the file can't be read.
using OpenContainer = std::function<std::unique_ptr<Container>(const Text& path)>;

/// Reads archives without the library.
OpenContainer DirectContainers(const FileSystem& files);

} // namespace quillon
