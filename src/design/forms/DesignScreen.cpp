#include "design/forms/DesignScreen.h"

#include "design/forms/DragRectFrame.h"
#include "design/forms/pixel_image.h"
#include "design/surface_click.h"
#include "design/text_panel.h"
#include "pictures/picture_file.h"
#include "platform/run_error.h"
#include "shell/session.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

/// Paints a picture of the project as the setup will: scaled to the image, or in its own size.
void PaintScaled(QImage& image, const ScalablePicture& picture, int width, int height,
                 Letters& letters)
{
    const Picture& sized = picture.InSize(width, height, letters);
    const QImage shown(reinterpret_cast<const uchar*>(sized.pixels.data()), sized.width,
                       sized.height, QImage::Format_ARGB32_Premultiplied);
    QPainter(&image).drawImage(0, 0, shown);
}

Long TwipsDown(int pixels, ScreenMetrics screen)
{
    return static_cast<Long>(pixels) * screen.TPPY;
}

} // namespace

DesignScreen::DesignScreen(Session& session)
    : session_(session), colorblendBackground_(new ColorblendBackground(letters_))
{
    setObjectName("DesignScreen");
    colorblendBackground_->setParent(this);
    colorblendBackground_->onDoubleClick = [this](QPoint place) { EditAt(place); };
    MakeObjects();
    dragRect_ = new DragRectFrame(this);
}

void DesignScreen::MakeObjects()
{
    const DesignObject::Surround surround{
        .surface = [this] { return place_; },
        .screen = session_.surface.screen,
        .showDragRect = [this](const std::optional<DragRect>& rect) { ShowDragRect(rect); }};
    MakePictures(surround);
    const auto edit = [this](Object object) {
        return [this, object] {
            if (onEditObject)
                onEditObject(object, 0);
        };
    };
    // Keeps where an object was dragged to, once it is moved inside the surface.
    const auto keep = [this](DesignObject*& object, auto store) {
        return [this, &object, store](const SurfacePlace& place) {
            const SurfacePlace inside = ClampDesPlace(place, place_, session_.surface.screen);
            object->PlaceAt(inside);
            store(session_.project, StoredPosition(inside.Left), StoredPosition(inside.Top));
            session_.state.ProjectIsDirty = kOn;
        };
    };
    DesPictureAnim_ = new DesignObject("DesPictureAnim", "Växlingsbara bilder", this);
    DesPictureAnim_->Connect(surround,
                             keep(DesPictureAnim_,
                                  [](Project& p, Integer x, Integer y) {
                                      p.DesPicturesAnim.PictureXPos = x;
                                      p.DesPicturesAnim.PictureYPos = y;
                                  }),
                             edit(Object::PicturesAnim));
    DesLogotype_ = new DesignObject("DesLogotype", "Logotype", this);
    DesLogotype_->Connect(surround, {}, edit(Object::Logotype));
    DesTextBoxPic_ = new DesignObject("DesTextBoxPic", "Textruta", this);
    DesTextBoxPic_->Connect(surround,
                            keep(DesTextBoxPic_,
                                 [](Project& p, Integer x, Integer y) {
                                     p.DesTextBox.BoxXPos = x;
                                     p.DesTextBox.BoxYPos = y;
                                 }),
                            edit(Object::TextBox));
    DesRTFboxPic_ = new DesignObject("DesRTFboxPic", "RTF-ruta", this);
    DesRTFboxPic_->Connect(surround,
                           keep(DesRTFboxPic_,
                                [](Project& p, Integer x, Integer y) {
                                    p.DesRTFbox.RTFboxXPos = x;
                                    p.DesRTFbox.RTFboxYPos = y;
                                }),
                           edit(Object::RTFbox));
    Label_DesRTFboxPic_ = new QLabel(DesRTFboxPic_);
    Label_DesRTFboxPic_->setObjectName("Label_DesRTFboxPic");
    Label_DesRTFboxPic_->setAttribute(Qt::WA_TransparentForMouseEvents);
}

void DesignScreen::MakePictures(const DesignObject::Surround& surround)
{
    for (std::size_t i = 0; i < DesPicture_.size(); ++i) {
        const Text number = NumberText(std::int64_t(i));
        DesPicture_[i] = new DesignObject(("DesPicture" + number).c_str(),
                                          "Bild " + NumberText(std::int64_t(i) + 1), this);
        DesPicture_[i]->Connect(
            surround, [this, i](const SurfacePlace& place) { MovePicture(i, place); },
            [this, i] {
                if (onEditObject)
                    onEditObject(Object::Pictures, i);
            });
        DesPicture_[i]->paint = [this, i](QImage& image, double scale) {
            const ScalablePicture& picture = pictures_[i];
            const bool isStretched = boxes_[i].isStretched;
            const auto side = [scale](int pixels) { return static_cast<int>(pixels * scale); };
            if (!picture.IsEmpty())
                PaintScaled(image, picture, isStretched ? image.width() : side(picture.Width()),
                            isStretched ? image.height() : side(picture.Height()), letters_);
        };
    }
}

void DesignScreen::DrawDesBackground()
{
    section::DesBackground& background = session_.project.DesBackground;
    paint_.UsePicture = background.Type != 1;
    paint_.StretchPicture = background.StretchPicture != kOff;
    ScalablePicture picture;
    if (paint_.UsePicture) {
        try {
            MeasureAndKeep(background.PictureFilename, picture);
        } catch (const RunError& error) {
            // The name stays in the record: the file may only be missing on this machine.
            TellPictureError(error);
            paint_.UsePicture = false;
            // Kept: the colours stay those that were painted last.
            colorblendBackground_->Show(paint_);
            return;
        }
    }
    SetBlend(paint_, background);
    colorblendBackground_->Show(paint_, std::move(picture));
}

void DesignScreen::DrawDesTitle()
{
    const Project& project = session_.project;
    colorblendBackground_->ShowTitle(project.DesTitle, project.DesTitleUnderline,
                                     project.DesSubTitle);
}

void DesignScreen::DrawDesPictures()
{
    session_.ask.ShowBusyPointer(true);
    std::size_t next = 0;
    const section::DesPictures& record = session_.project.DesPictures;
    const auto measure = [&](const Text& file) {
        while (record.Pictures[next].PictureFilename.empty())
            pictures_[next++] = {};
        return MeasureAndKeep(file, pictures_[next++]);
    };
    std::optional<RunError> failure;
    RunErrorNumber(
        [&] {
            LayOutPictures(session_.project.DesPictures, boxes_, place_, session_.surface.screen,
                           measure);
        },
        failure);
    session_.ask.ShowBusyPointer(false);
    if (failure)
        TellPictureError(*failure);
    ShowPictures();
}

void DesignScreen::ShowPictures()
{
    for (std::size_t i = 0; i < boxes_.size(); ++i)
        ShowObject(*DesPicture_[i], boxes_[i].place, boxes_[i].isVisible);
}

void DesignScreen::MovePicture(std::size_t index, const SurfacePlace& place)
{
    boxes_[index].place = place;
    KeepPicturesInsideDesign(session_.project.DesPictures, boxes_, place_, session_.surface.screen);
    ShowPictures();
    session_.state.ProjectIsDirty = kOn;
}

void DesignScreen::DrawDesPicturesAnim()
{
    const ShownBox box =
        LayOutPicturesAnim(session_.project.DesPicturesAnim, session_.surface.screen);
    DesPictureAnim_->paint = [](QImage& image, double scale) {
        image.fill(QColor(0x80, 0x80, 0x80));
        QPainter painter(&image);
        painter.setPen(QPen(Qt::white, scale));
        painter.drawRect(image.rect().adjusted(0, 0, -1, -1));
        QFont font = painter.font();
        font.setPixelSize(static_cast<int>(13 * scale));
        painter.setFont(font);
        painter.drawText(image.rect(), Qt::AlignCenter | Qt::TextWordWrap, "Växlingsbara bilder");
    };
    ShowObject(*DesPictureAnim_, box.place, box.isVisible);
}

void DesignScreen::DrawDesLogotype()
{
    section::DesLogotype& record = session_.project.DesLogotype;
    const LogotypeSurround surround{.surface = place_,
                                    .tabWidth = tabWidth_,
                                    .screen = session_.surface.screen,
                                    .paint = paint_};
    session_.ask.ShowBusyPointer(true);
    std::optional<RunError> failure;
    RunErrorNumber(
        [&] {
            logotypeBox_ = LayOutLogotype(
                record, surround, [&](const Text& file) { return MeasureAndKeep(file, logotype_); },
                session_.ask);
        },
        failure);
    session_.ask.ShowBusyPointer(false);
    if (failure) {
        TellPictureError(*failure);
        logotypeBox_ = {};
    }
    DesLogotype_->paint = [this](QImage& image, double) {
        if (logotypeBox_.isMetafile)
            image.fill(PixelOf(logotypeBox_.BackColor));
        PaintScaled(image, logotype_, image.width(), image.height(), letters_);
    };
    ShowObject(*DesLogotype_, logotypeBox_.place, logotypeBox_.isVisible);
}

void DesignScreen::DrawDesLogotypeBackColor()
{
    const section::DesBackground& background = session_.project.DesBackground;
    if (!IsMetafileName(session_.project.DesLogotype.LogotypeFilename))
        return;
    logotypeBox_.BackColor = LogotypeBackColor({.UsePicture = background.Type == 2,
                                                .ColorFrom = background.BackColor1,
                                                .ColorTo = background.BackColor2});
    DesLogotype_->update();
}

void DesignScreen::DrawDesTextBox()
{
    section::DesTextBox& record = session_.project.DesTextBox;
    const ScreenMetrics screen = session_.surface.screen;
    const TextBoxLayout layout =
        LayOutTextBox(record, place_, screen, colorblendBackground_->TitleBottom(),
                      TwipsDown(HeadingHeight(letters_, record), screen));
    DesTextBoxPic_->setAccessibleDescription(ToQt(record.BoxTitle + "\n" + record.BoxText));
    DesTextBoxPic_->paint = [this](QImage& image, double scale) { PaintLabels(image, scale); };
    ShowObject(*DesTextBoxPic_, layout.box, layout.isVisible);
}

// Kept: here the box is always filled; whether the setup fills it is the record's matter.
void DesignScreen::PaintLabels(QImage& image, double scale)
{
    PaintTextPanel(CanvasOf(image), letters_, RectAt(0, 0, image.width(), image.height()),
                   session_.project.DesTextBox, {scale, scale}, true);
}

void DesignScreen::DrawDesRTFbox()
{
    section::DesRTFbox& record = session_.project.DesRTFbox;
    const ShownBox box = LayOutRTFbox(record, place_, session_.surface.screen);
    const Pixel colour = PixelOf(record.RTFboxBackColor);
    DesRTFboxPic_->paint = [colour](QImage& image, double) { image.fill(colour); };
    Label_DesRTFboxPic_->setText(ToQt(record.RTFfilename));
    // Readable on the box's own colour, whatever colours the desktop has.
    QPalette palette = Label_DesRTFboxPic_->palette();
    const bool isDark = qGray(colour) < 128;
    palette.setColor(QPalette::WindowText, isDark ? Qt::white : Qt::black);
    Label_DesRTFboxPic_->setPalette(palette);
    Label_DesRTFboxPic_->move(PixelsOf(kRTFNameLeft, session_.surface.screen.TPPX),
                              PixelsOf(kRTFNameTop, session_.surface.screen.TPPY));
    Label_DesRTFboxPic_->adjustSize();
    ShowObject(*DesRTFboxPic_, box.place, box.isVisible);
}

void DesignScreen::DrawDesAll()
{
    DrawDesBackground();
    DrawDesTitle();
    DrawDesPictures();
    DrawDesPicturesAnim();
    DrawDesLogotype();
    DrawDesTextBox();
    DrawDesRTFbox();
}

void DesignScreen::HideDesObjects()
{
    for (DesignObject* picture : DesPicture_)
        picture->hide();
    for (DesignObject* object : {DesPictureAnim_, DesLogotype_, DesTextBoxPic_, DesRTFboxPic_})
        object->hide();
}

void DesignScreen::PlaceSurface(QSize tab, int captionHeight)
{
    DesignSurface& surface = session_.surface;
    const auto [across, down] = surface.screen;
    tabWidth_ = tab.width() * across;
    PlaceDesignArea(place_, tabWidth_, tab.height() * down + kTabCaptionsHeight,
                    HasTallCaption(session_.host.machine.IsWindowsXP(), captionHeight));
    surface.width = PixelsOf(place_.Width, across);
    surface.height = PixelsOf(place_.Height, down);
    colorblendBackground_->setGeometry(PixelsOf(place_.Left, across), PixelsOf(place_.Top, down),
                                       surface.width, surface.height);
}

void DesignScreen::ShowObject(DesignObject& object, const SurfacePlace& place, bool isVisible)
{
    object.PlaceAt(place);
    object.setVisible(isVisible);
}

PixelSize DesignScreen::MeasureAndKeep(const Text& file, ScalablePicture& kept)
{
    kept = {};
    PictureResult read = ReadPictureFile(session_.host.files, file);
    if (read.fault != PictureFault::None)
        throw RunError(read.fault == PictureFault::NotFound ? ErrorNumber::kFileNotFound
                                                            : kInvalidPicture,
                       file);
    reported_.erase(file);
    kept = std::move(read.picture);
    return {kept.Width(), kept.Height()};
}

void DesignScreen::TellPictureError(const RunError& error)
{
    if (reported_.insert(error.Path()).second)
        ShowErrorBoxIfPictureError(session_.ask, error.Number());
}

void DesignScreen::ShowDragRect(const std::optional<DragRect>& rect)
{
    dragRect_->ShowRect(rect, colorblendBackground_->pos());
}

void DesignScreen::EditAt(QPoint place)
{
    const Project& project = session_.project;
    const SurfaceTexts texts{.fontSize = project.DesTitle.TitleFontSize,
                             .UnderlineType = project.DesTitleUnderline.UnderlineType,
                             .UnderlineHeight = project.DesTitleUnderline.UnderlineHeight,
                             .hasSubTitle = !project.DesSubTitle.SubTitleText.empty()};
    const ScreenMetrics screen = session_.surface.screen;
    if (onEditSurface)
        onEditSurface(EditorAt(TwipsDown(place.y(), screen), texts, screen));
}

} // namespace quillon
