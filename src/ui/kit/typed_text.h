// What may be typed. A project holds the characters of Windows-1252 and texts up to a length of
// their own; an edit field takes no more, so that nothing is lost when the project is saved.
#pragma once

#include <functional>

class QLineEdit;
class QPlainTextEdit;
class QString;
class QWidget;

namespace quillon {

/// From now on characters that no project can hold are taken out again with a beep, typed, pasted
/// or dropped; so is the whole of what is put in where there is no room for it, and the field says
/// why. `maxLength` is in bytes on file, 0 is any length. Line breaks in a line become blanks.
void LimitTyping(QLineEdit* field, int maxLength);
void LimitTyping(QPlainTextEdit* field, int maxLength);

/// Whether the field, a line or an area, holds more than `maxLength` bytes on file: a project that
/// was not read from a file may have come with it. The field says so and takes the keyboard.
bool WarnIfTooLong(QWidget* field, int maxLength);

/// From now on no line break comes into an area whose text the project file holds in one line:
/// Enter presses the form's default button, and breaks that are pasted become blanks.
void KeepOneLine(QPlainTextEdit* area);

/// The text of the area with its blanks: Qt's own plain text replaces non-breaking blanks by usual
/// ones.
QString TypedText(const QPlainTextEdit* area);

/// Runs `leave` whenever the keyboard leaves the widget for another one of its window.
void OnLeave(QWidget* widget, std::function<void()> leave);

} // namespace quillon
