// The screen behind the pages, as the package designs it, in the size of the user's own screen.
#pragma once

#include "pictures/screen_files.h"
#include "runtime/pages/design_files.h"
#include "runtime/setup_variables.h"

#include <array>

namespace quillon {

class DesignScreen {
public:
    /// Files that can't be shown are left out. `files` outlives it.
    DesignScreen(const SetupInformation& setup, const SetupVariables& variables,
                 const DesignFiles& files, int width, int height);
    DesignScreen(const DesignScreen&) = delete;
    DesignScreen& operator=(const DesignScreen&) = delete;

    /// While a page is shown, the free pictures may have to be hidden.
    void Paint(const Canvas& canvas, Letters& letters, bool isPageShown) const;

    /// How long each of the changing pictures is shown, in milliseconds; 0 where nothing changes.
    int Interval() const;
    /// Takes the next of the changing pictures; the part of the screen that it is on. One that
    /// can't be shown is passed over.
    PixelRect ShowNext();

    /// Expands the variables of its texts again; true if one of them has changed by that.
    bool SetVariables(const SetupVariables& variables);

    int Width() const { return width_; }
    int Height() const { return height_; }

private:
    ScreenDesign Design(bool isPageShown) const;

    Project project_;           // its texts have their variables expanded
    std::array<Text, 4> texts_; // as the project has them
    const DesignFiles& files_;
    int surfaceWidth_;
    int surfaceHeight_;
    int width_;
    int height_;
    ScreenFiles read_;
    std::vector<Text> changing_;
    std::size_t shownPicture_ = 0;
};

} // namespace quillon
