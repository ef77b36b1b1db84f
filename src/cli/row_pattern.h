// How a command line names rows of the file list: by file name, with * and ?, or by number.
#pragma once

#include "project/file_list.h"

#include <span>
#include <string>

namespace quillon::cli {

/// The rows that any of the patterns selects, in ascending order, counted from 0.
///
/// "3", "2-5" and "1,4-6" are numbers, counted from 1 as the list shows them. All else is a name,
/// case ignored: "*" stands for any characters, "?" for one. "name:3" is the file "3". Throws
/// `CallFailure` for a pattern that selects nothing, which is mostly a typing error, and
/// `UsageError` for one that can't select anything.
std::vector<std::size_t> SelectRows(const FileList& files, std::span<const std::string> patterns);

/// Whether a name fits a pattern with * and ?; both in the same case.
bool FitsWildcards(std::string_view name, std::string_view pattern);

} // namespace quillon::cli
