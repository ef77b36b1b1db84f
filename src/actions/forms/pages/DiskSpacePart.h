// What an installation needs and what is free where it would go, on the pages that ask for a place:
// at once, by a button, or both.
#pragma once

#include "actions/forms/previews/previews.h"
#include "ui/kit/form_kit.h"

#include <QWidget>
#include <optional>

class QLabel;
class QPushButton;

namespace quillon {

class DiskSpacePart : public QWidget {
public:
    DiskSpacePart(const DiskSpacePreview& page, Session& session);

    /// The place that the page shows now, as a folder.
    void ShowFor(const Text& folder);

    QLabel* sNeeded = nullptr;
    QLabel* sFree = nullptr;
    QPushButton* cmdDiskSpace = nullptr;

private:
    Text Needed();
    void TellInBox();

    Session& session_;
    Text folder_;
    // Computed once: sizes that can't be read show a message box.
    std::optional<Text> needed_;
};

} // namespace quillon
