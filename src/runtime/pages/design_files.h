// The files that pages and screen show, by the names under which QNSETUP.INF knows them: entries of
// the package's DESOBJ.DAT or, in a test run, files of the author's machine. They are read into
// memory alone, so that none of them has to be removed again.
#pragma once

#include "design/scalable_picture.h"
#include "platform/file_system.h"
#include "runtime/package/container.h"

namespace quillon {

class DesignFiles {
public:
    enum class Names { InPackage, AbsolutePaths };

    DesignFiles(const FileSystem& files, OpenContainer openContainer, const Text& packageFolder,
                Names names);
    ~DesignFiles();
    DesignFiles(const DesignFiles&) = delete;
    DesignFiles& operator=(const DesignFiles&) = delete;

    /// The files as if each lay on a disk under its name. Nothing can be written there.
    const FileSystem& Files() const { return *files_; }
    /// The standard picture where the page names none, or one that can't be shown.
    ScalablePicture SidePicture(const Text& name) const;

private:
    std::unique_ptr<FileSystem> packed_; // null where the files lie on a disk
    const FileSystem* files_;
};

} // namespace quillon
