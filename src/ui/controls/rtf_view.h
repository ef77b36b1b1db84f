// Formatted text on white paper, as an agreement is printed: whatever colours the desktop has, a
// writer chose the colours of the text for white paper. To be read only.
#pragma once

#include "platform/file_system.h"
#include "rtf/rtf_text.h"

#include <QTextEdit>

namespace quillon {

class RtfView : public QTextEdit {
public:
    explicit RtfView(const Text& accessibleName);

    /// Shows the file, or says in its place why it can't be shown. Above a file that ends too early
    /// a line says so.
    void ShowFile(const FileSystem& files, const Text& path);

    void ShowText(const RtfText& text);
    void ShowNote(const Text& note);

    /// The note about the file; empty where it is shown whole.
    const QString& ShownNote() const { return note_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

private:
    QString note_;
};

} // namespace quillon
