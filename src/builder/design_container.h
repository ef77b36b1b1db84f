// Makes DESOBJ.DAT, the container with the pictures, sound and text that the setup shows.
#pragma once

#include "builder/create_run.h"

namespace quillon {

/// A project without any such file gets no container, which the runtime takes as normal.
[[nodiscard]] Step CreateDesignContainer(CreateRun& run);

} // namespace quillon
