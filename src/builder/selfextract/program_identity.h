// What a program says about itself: the version resource and the manifest, made of the project's
// words.
#pragma once

#include "helpers/text.h"

#include <string>

namespace quillon {

struct ProgramIdentity {
    Text company;
    Text product;
    Text version; // "2.1" and the like
    Text description;
    Text fileName;
};

/// The version resource, in the language that is none.
std::string VersionResource(const ProgramIdentity& identity);

/// The manifest: the program asks for no rights of its own, and wants the newer controls.
std::string ProgramManifest(const ProgramIdentity& identity);

} // namespace quillon
