// Writes JSON, compact or one line after the other as a log wants it. Small, since each program of
// a package carries it; it only writes.
#pragma once

#include "helpers/text.h"

#include <cstdint>

namespace quillon {

/// Bytes that are no UTF-8 become U+FFFD, so that the output is JSON whatever the texts are.
class JsonWriter {
public:
    // A name inside an object, none inside an array and outermost.
    void OpenObject(std::string_view name = {}) { Open(name, '{'); }
    void OpenArray(std::string_view name = {}) { Open(name, '['); }
    /// Ends the innermost object or array.
    void Close();

    void Add(std::string_view name, std::string_view text);
    void Add(std::string_view name, std::int64_t number);
    void AddFlag(std::string_view name, bool value);
    /// A text in an array.
    void AddItem(std::string_view text) { Add({}, text); }

    /// What was written so far; everything has to be closed.
    const Text& Written() const { return text_; }

private:
    void Begin(std::string_view name);
    void Open(std::string_view name, char bracket);
    void Quote(std::string_view text);

    Text text_;
    Text open_; // the closing brackets that are still to come
};

} // namespace quillon
