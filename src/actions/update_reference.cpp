#include "actions/update_reference.h"

namespace quillon {

Text UpdateReferenceName(const Text& typed)
{
    return UpperCase(typed);
}

} // namespace quillon
