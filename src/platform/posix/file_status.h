// What POSIX knows about a file, in the terms of the product; and moments to the local clock and
// back.
#pragma once

#include "platform/file_system.h"

#include <sys/stat.h>
#include <time.h>

namespace quillon {

/// There are no attributes for hidden, archive and system files here, so they are off. A name that
/// begins with a dot does not make a file hidden: hidden files stay out of packages in silence,
/// and a product may well need its ".htaccess".
FileStatus StatusOf(const struct stat& status);

LocalTime LocalTimeOf(time_t moment);
time_t MomentOf(const LocalTime& time);

} // namespace quillon
