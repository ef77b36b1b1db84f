// For whom a product is installed.
#pragma once

namespace quillon {

enum class InstallScope {
    Project,    // as the project says: for the whole machine, with the group where it wants that
    AllUsers,   // /ALLUSERS
    CurrentUser // /CURRENTUSER: nothing outside what is the user's own
};

} // namespace quillon
