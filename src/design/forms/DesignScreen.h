// The design tab's contents: the surface with the objects on it, laid out from the open project's
// records. What an object is edited with is in design_commands.
#pragma once

#include "design/forms/ColorblendBackground.h"
#include "design/forms/DesignObject.h"
#include "design/forms/Placeholder.h"
#include "design/object_layout.h"
#include "design/surface_click.h"
#include "design/system_letters.h"
#include "pictures/picture_error.h"

#include <array>
#include <map>

class QLabel;

namespace quillon {

class DragRectFrame;
struct Session;

class DesignScreen : public QWidget {
public:
    explicit DesignScreen(Session& session);

    Session& GetSession() { return session_; }

    // Each lays one object out again. What the layout corrects is kept in the record. A picture
    // that can't be shown is reported once, and its name stays in the record; as long as it is
    // missing, the status bar says why.
    void DrawDesBackground();
    void DrawDesTitle();
    void DrawDesPictures();
    void DrawDesPicturesAnim();
    void DrawDesLogotype();
    void DrawDesTextBox();
    void DrawDesRTFbox();
    void DrawDesAll();
    void HideDesObjects();

    enum class PictureStep { Background, Pictures, Logotype };
    /// The user has set the picture of that step again, so a failure is reported again.
    void ReportAgain(PictureStep step) { reported_.erase(step); }
    /// The project is another one, or was read again: nothing of what was shown stays, and all
    /// steps report again.
    void BeginProject();

    /// Shows a font of the text box that was chosen, and lays nothing out.
    void RepaintDesTextBox() { Of(Object::TextBox).update(); }

    Long ScreenHeightInPixels() const;
    /// What is kept of all pictures together, in bytes.
    std::int64_t PicturesMemory() const;

    /// The colour behind a metafile logotype, by the blend of the record alone.
    void DrawDesLogotypeBackColor();

    /// `tab` is the whole of the tab's page, in pixels.
    void PlaceSurface(QSize tab, int captionHeight);

    enum class Object { Pictures, PicturesAnim, Logotype, TextBox, RTFbox };
    /// Called with the object that is to be edited; `index` counts the free pictures.
    std::function<void(Object, std::size_t index)> onEditObject;
    /// Called with the editor that a double click on the surface itself opens.
    std::function<void(SurfaceEditor)> onEditSurface;

private:
    void MakeObjects(const DesignObject::Surround& surround);
    void MakePictures(const DesignObject::Surround& surround);
    void SetPaints();
    DesignObject& Of(Object object) const { return *objects_.at(object); }
    void PaintSized(QImage& image, const ScalablePicture& picture, int width, int height);
    void PaintLabels(QImage& image, double scale);
    void ShowObject(DesignObject& object, const SurfacePlace& place, bool isVisible);
    void MovePicture(std::size_t index, const SurfacePlace& place);
    void ShowPictures();
    void EditAt(QPoint place);
    /// Throws `PictureError` where the file can't be shown.
    PixelSize MeasureAndKeep(const Text& file, ScalablePicture& kept);
    void ForgetPictures();
    std::optional<PictureError> LayOutDesPictures();
    PixelSize ReadDesPicture(std::size_t index);
    PixelSize ReadDesLogotype();
    LogotypeSurround SurroundOfLogotype() const;
    ScalablePicture ReadBackground();
    /// No more of the picture than fills a place of the surface.
    void KeepOnlyIn(const SurfacePlace& place, ScalablePicture& picture) const;
    /// Whether the step has not reported that file yet.
    bool IsUnreported(PictureStep step, const Text& file);
    void TellPictureError(PictureStep step, const PictureError& error);
    void TellShown(PictureStep step);
    void TellTooLargeLogotype();
    /// Has the status bar say why a picture is missing; an empty text says that none is.
    void ShowWhyMissing(PictureStep step, const Text& why);
    void ForgetWhyMissing();
    void ShowDragRect(const std::optional<DragRect>& rect);

    Session& session_;
    FontLetters letters_;
    SurfacePlace place_;
    SurfacePaint paint_;
    Long tabWidth_ = 0;
    ColorblendBackground* colorblendBackground_;
    // The largest surface for which enough of the background's picture is kept.
    QSize backgroundRoom_;
    std::array<DesignObject*, section::kDesPictureCount> DesPicture_{};
    std::array<ScalablePicture, section::kDesPictureCount> pictures_;
    PictureBoxes boxes_;
    // The others, one of each kind.
    std::map<Object, DesignObject*> objects_;
    ScalablePicture logotype_;
    LogotypeBox logotypeBox_;
    QLabel* Label_DesRTFboxPic_ = nullptr;
    // The file that each step reported last: steps are drawn again and again.
    std::map<PictureStep, Text> reported_;
    // What the status bar says of each step.
    std::map<PictureStep, Text> whyMissing_;
    DragRectFrame* dragRect_ = nullptr;
    Placeholder BtDesRTF_;
    Placeholder BtDesPix_;
};

} // namespace quillon
