// The sample product as one program, and what its runs leave on the machine.
#pragma once

#include "wine/sample_product.h"

#include <gtest/gtest.h>

namespace quillon::test {

// What the program ends with by itself.
namespace SelfExtractCode {
inline constexpr unsigned kNoRoom = 112;
inline constexpr unsigned kFailed = 1603;
inline constexpr unsigned kOtherSetupRuns = 1618;
inline constexpr unsigned kDamaged = 1620;
inline constexpr unsigned kBadSwitch = 1639;
} // namespace SelfExtractCode

/// In a folder with blanks and letters of its own, as a browser may have one, and alone there.
std::filesystem::path MakeProgram(SampleProduct& product, std::vector<std::string> options = {});

/// Where the product lies once it is installed.
std::filesystem::path InstalledFolder(const WinePrefix& prefix);

/// Every file of the product is there as it was packed, and so are its registry keys.
void ExpectInstalled(const SampleProduct& product, const WinePrefix& prefix);

/// The folders for unpacking that are left below the users' folders and Windows' own, a line each.
std::string LeftOvers(const WinePrefix& prefix);

/// The folder for temporary files.
std::filesystem::path TempFolderOf(const WinePrefix& prefix);

std::size_t CountOf(const std::filesystem::path& folder);

} // namespace quillon::test
