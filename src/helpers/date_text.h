// Dates and times as the file list shows them: always in this form, never by the locale, since the
// list sorts dates as texts.
#pragma once

#include "helpers/text.h"

#include <compare>

namespace quillon {

/// A moment on the local clock.
struct LocalTime {
    int year = 1980;
    int month = 1;
    int day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;

    auto operator<=>(const LocalTime&) const = default;
};

/// "yyyy-mm-dd"
Text DateText(const LocalTime& time);
/// "hh:mm"
Text TimeText(const LocalTime& time);
/// "hh:mm:ss"
Text TimeTextWithSeconds(const LocalTime& time);

} // namespace quillon
