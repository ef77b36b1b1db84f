#include "project/records.h"

namespace quillon {

bool IsTrueText(const Text& value)
{
    return EqualIgnoreCase(value, "True") || LeadingNumber(value) != 0;
}

} // namespace quillon
