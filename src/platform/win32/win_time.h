// Moments of Windows as times on the local clock, by the rules that held on that day.
#pragma once

#include "helpers/date_text.h"

#include <windows.h>

namespace quillon {

LocalTime LocalTimeOf(const SYSTEMTIME& local);
LocalTime LocalTimeOf(const FILETIME& moment);
FILETIME MomentOf(const LocalTime& time);

} // namespace quillon
