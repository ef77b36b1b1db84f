// The side picture of a setup's pages: how it looks, where it is, and the buttons to choose
// another. The tab for the pages shows the one of all pages, an editor that of its own page.
#pragma once

#include "helpers/text.h"

#include <QGroupBox>
#include <functional>
#include <optional>

class QPushButton;

namespace quillon {

class PathLabel;
class PictureView;
struct Session;

/// What the controls are called, and what is on the frame.
struct PictureChoiceNames {
    const char* caption;
    const char* select;
    const char* standard;
    const char* filename;
    const char* picture;
};

class PictureChoice : public QGroupBox {
public:
    /// `onChoice` is called with the path of the chosen picture, after that picture is shown.
    PictureChoice(const PictureChoiceNames& names, Session& session,
                  std::function<void(const Text& path)> onChoice);

    /// Shows what is there now, or says why there is nothing to show.
    void ShowBitmap(const Text& path);

private:
    QPushButton* Button(const char* name, const char* caption,
                        std::function<std::optional<Text>()> choose);

    Session& session_;
    std::function<void(const Text&)> onChoice_;
    PathLabel* filename_ = nullptr;
    PictureView* picture_ = nullptr;
};

} // namespace quillon
