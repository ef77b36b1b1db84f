#include "actions/install_password.h"

#include "ini/profile_lines.h"

namespace quillon {

std::optional<Text> PasswordAfterReopening(const Text& typed)
{
    const Text kept(BareValue(typed));
    return kept == typed ? std::nullopt : std::optional(kept);
}

} // namespace quillon
