// A small product, made into a package by Create in memory and installed from there by the setup's
// own logic: both ends of what they agree on.
#pragma once

#include "builder/create_desk.h"
#include "runtime/exit_codes.h"
#include "runtime/support/memory_target.h"

#include <ostream>

namespace quillon::test {

using PackageFiles = std::map<Text, std::string>; // by the names below the package's folder

struct ProductMedium {
    const char* name;
    Medium medium;
    bool isOneByOne = false;
    bool isSmall = false;
};
inline void PrintTo(const ProductMedium& medium, std::ostream* out)
{
    *out << medium.name;
}

/// A package with every kind of file that there is. Of a tree the project's files are laid out.
PackageFiles MakeProductPackage(const ProductMedium& medium, const Text& password = {});

/// Lists the files again, as a user who has changed some of them would; those outside the package
/// are not its own.
void ListAgain(PackageFiles& files);

struct InstalledProduct {
    ExitCode code;
    Text log;
    std::map<Text, std::string> machine; // all files but the log, and the registry as texts
    std::map<Text, LocalTime> modified;  // of the files
};

/// Installs without a question on a machine that is always the same.
InstalledProduct InstallProduct(const PackageFiles& files, const Text& password = {});

/// The same with these switches.
InstalledProduct RunProduct(const PackageFiles& files, const Text& switches);

/// What that machine holds before.
std::map<Text, std::string> EmptyMachine();

/// What `verify` says.
std::vector<Text> VerifyProduct(const PackageFiles& files);

} // namespace quillon::test
