// Compares files with the manifest before a starter starts them: with the manifest of the package,
// which has to be as Create wrote it, or of the uninstaller. Like the starters it links none of the
// standard library.
#pragma once

#include "helpers/sha256.h"

#include <string_view>

/// The manifest in one piece of memory, which the system frees when the program ends.
class ListedFiles {
public:
    /// `path` is the manifest's.
    explicit ListedFiles(const wchar_t* path);

    /// False in a package without a manifest, whose files are not compared.
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
