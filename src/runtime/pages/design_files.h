// The files that pages and screen show, by the names under which QNSETUP.INF knows them: entries of
// the package's DESOBJ.DAT or, in a test run, files of the author's machine. They are read into
// memory alone, so that none of them has to be removed again.
#pragma once

#include "design/scalable_picture.h"
#include "platform/file_system.h"
#include "runtime/container.h"

namespace quillon {

class DesignFiles {
public:
    enum class Names { InPackage, WholePaths };

    DesignFiles(const FileSystem& files, OpenContainer openContainer, Text packageFolder,
                Names names);

    /// Throws `RunError` or `ZipError` where there is no such file or it can't be read.
    std::string Read(const Text& name);
    /// The standard picture where the page names none, or one that can't be shown.
    ScalablePicture SidePicture(const Text& name);

private:
    std::string ReadFromPackage(const Text& name);

    const FileSystem& files_;
    OpenContainer openContainer_;
    Text packageFolder_;
    Names names_;
    std::unique_ptr<Container> container_; // opened when the first file is asked for
};

} // namespace quillon
