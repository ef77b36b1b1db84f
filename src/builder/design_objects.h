// The files that the setup shows on its background screen and in its dialogs.
#pragma once

#include "builder/create_options.h"
#include "platform/file_system.h"
#include "project/records.h"

#include <vector>

namespace quillon {

/// The animation's pictures that are in use, named or not.
std::vector<Text> AnimationPictures(const section::DesPicturesAnim& animation);

/// True for the picture that the runtime has of its own, which is neither named in a package nor
/// packed.
bool IsDefaultDialogBitmap(const Text& path);

struct DesignObject {
    Text path;
    bool isCheckedFirst = true;
};

/// What goes into the design container, in its order there.
std::vector<DesignObject> DesignObjects(const Project& project, const FileSystem& files,
                                        const CreateOptions& options);

/// Whether the runtime must be the one that can show JPEG pictures. Kept: only ".jpg" counts, and
/// the pictures of dialogs do not.
bool UsesJpegPictures(const Project& project);

} // namespace quillon
