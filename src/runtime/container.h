// How the setup comes to a package's archive. In a package it is read through the library that
// travels with it; the tests read it directly.
#pragma once

#include "archive/container.h"

#include <functional>
#include <memory>

namespace quillon {

/// Throws `ZipError`, or `RunError` when the file can't be read.
using OpenContainer = std::function<std::unique_ptr<Container>(const Text& path)>;

} // namespace quillon
