// The letters of the system that a program is built for.
#pragma once

#ifdef _WIN32
#error "The setup has letters of its own in runtime/win32; the tool is not built for Windows yet."
#endif

#include "design/posix/font_letters.h"
