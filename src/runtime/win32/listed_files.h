// A starter's look at the manifest of what it is about to start: of the package, which has to be
// what Create wrote, or of the uninstaller. Like the starters it takes nothing from the standard
// library that needs its code.
#pragma once

#include "helpers/sha256.h"

#include <string_view>

/// The manifest as one piece of memory, which the system takes back at the program's end.
class ListedFiles {
public:
    /// `path` is the manifest's.
    explicit ListedFiles(const wchar_t* path);

    /// False in a package without a manifest, whose files are taken as they come.
    bool AreKnown() const { return isThere_; }

    /// Whether the file at `path` is the one that the manifest calls `name`.
    bool Hold(const wchar_t* path, std::string_view name) const;
    /// Whether it is any of the listed files: the starter may have been given another name.
    bool Hold(const wchar_t* path) const;

private:
    bool HasLine(const quillon::Sha256Digest& digest, std::string_view name) const;

    bool isThere_ = false;
    std::string_view text_; // empty where it could not be read
};
