// What a Visual Basic .NET project file (.vbproj) of 2002 or 2003 names. It looks like XML and is
// read by its lines: each attribute is on one of its own.
#pragma once

#include "helpers/text.h"

#include <optional>
#include <vector>

namespace quillon {

/// A COM component, by its type library.
struct ComReference {
    Text guid; // with its braces
    Text major;
    Text minor;
    Text name = {}; // as the project calls it; empty where it does not

    bool operator==(const ComReference&) const = default;
};

struct ComReferences {
    std::vector<ComReference> list; // in the order of the file
    bool isCut = false;             // there are more than `kMaxReferences`
};
/// Nothing where the file has no list of references.
std::optional<ComReferences> ComReferencesOf(const std::vector<Text>& lines);

/// The lines that name an included file, in upper case.
std::vector<Text> IncludedFileLines(const std::vector<Text>& lines);

/// A project file of 2005 or later: XML for MSBuild, with or without an SDK.
bool IsMsBuildProject(const std::vector<Text>& lines);

} // namespace quillon
