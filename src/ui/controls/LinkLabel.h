// A text that opens something when it is clicked, or chosen with the keyboard.
#pragma once

#include "helpers/text.h"

#include <QLabel>
#include <functional>

namespace quillon {

struct Session;

class LinkLabel : public QLabel {
public:
    LinkLabel(const Text& text, std::function<void()> open);
    /// Opens a document or an address in the program that the system has for it; a failure is shown
    /// in a box.
    LinkLabel(Session& session, const Text& text, const Text& target);

    void ShowLink(const Text& text);
};

/// Opens a document, a folder or an address; a failure is shown in a box.
void OpenOrTell(Session& session, const Text& target);

} // namespace quillon
