// How a settings section is described as data: a row for each key, in the order on file. Writer and
// reader of a format are two visitors of the same rows, so they cannot drift apart. Each format has
// an enum of its own for the forms in which a value can be in it.
#pragma once

#include "helpers/number_text.h"
#include "helpers/text.h"

#include <cstddef>
#include <variant>

namespace quillon {

template <class Section>
using Field = std::variant<Text Section::*, Integer Section::*, Long Section::*>;

/// `limit` is the size of the buffer that a text is read into: the longest value that comes back
/// has one byte less. Numbers and flags have none.
template <class Section, class Form>
struct Key {
    const char* name;
    Field<Section> field;
    Form form;
    int limit = 0;
};

/// Of the longest text that comes back for this field, in bytes on file. A window takes no more.
template <class Section, class Form, std::size_t Rows>
int MaxTextLength(const Key<Section, Form> (&table)[Rows], Text Section::*field)
{
    for (const Key<Section, Form>& key : table)
        if (const auto* text = std::get_if<Text Section::*>(&key.field); text && *text == field)
            return key.limit - 1;
    return 0;
}

} // namespace quillon
