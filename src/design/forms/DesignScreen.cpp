#include "design/forms/DesignScreen.h"

#include "design/forms/DragRectFrame.h"
#include "design/forms/pixel_image.h"
#include "design/surface_click.h"
#include "design/text_panel.h"
#include "shell/session.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

using Object = DesignScreen::Object;

// The objects beside the free pictures. One whose record has no place can't be moved.
struct ObjectTraits {
    Object object;
    const char* name;
    const char* accessibleName;
    void (*store)(Project& project, Integer left, Integer top);
};

constexpr ObjectTraits kObjects[] = {
    {Object::PicturesAnim, "DesPictureAnim", "Växlingsbara bilder",
     [](Project& project, Integer left, Integer top) {
         project.DesPicturesAnim.PictureXPos = left;
         project.DesPicturesAnim.PictureYPos = top;
     }},
    {Object::Logotype, "DesLogotype", "Logotype", nullptr},
    {Object::TextBox, "DesTextBoxPic", "Textruta",
     [](Project& project, Integer left, Integer top) {
         project.DesTextBox.BoxXPos = left;
         project.DesTextBox.BoxYPos = top;
     }},
    {Object::RTFbox, "DesRTFboxPic", "RTF-ruta",
     [](Project& project, Integer left, Integer top) {
         project.DesRTFbox.RTFboxXPos = left;
         project.DesRTFbox.RTFboxYPos = top;
     }},
};

Long TwipsDown(int pixels, ScreenMetrics screen)
{
    return static_cast<Long>(pixels) * screen.TPPY;
}

} // namespace

DesignScreen::DesignScreen(Session& session)
    : session_(session), colorblendBackground_(new ColorblendBackground(letters_)),
      BtDesRTF_(session.host.files, session.options.ToolFolder, "BtDesRTF.bmp"),
      BtDesPix_(session.host.files, session.options.ToolFolder, "BtDesPix.bmp")
{
    setObjectName("DesignScreen");
    colorblendBackground_->setParent(this);
    colorblendBackground_->onDoubleClick = [this](QPoint place) { EditAt(place); };
    const DesignObject::Surround surround{
        .surface = [this] { return place_; },
        .screen = session_.surface.screen,
        .showDragRect = [this](const std::optional<DragRect>& rect) { ShowDragRect(rect); }};
    MakePictures(surround);
    MakeObjects(surround);
    SetPaints();
    dragRect_ = new DragRectFrame(this);
}

void DesignScreen::MakeObjects(const DesignObject::Surround& surround)
{
    for (const ObjectTraits& traits : kObjects) {
        auto* const object = new DesignObject(traits.name, traits.accessibleName, this);
        objects_[traits.object] = object;
        std::function<void(const SurfacePlace&)> keep;
        if (traits.store)
            keep = [this, object, &traits](const SurfacePlace& place) {
                const SurfacePlace inside = ClampDesPlace(place, place_, session_.surface.screen);
                object->PlaceAt(inside);
                traits.store(session_.project, StoredPosition(inside.Left),
                             StoredPosition(inside.Top));
                session_.state.ProjectIsDirty = kOn;
            };
        object->Connect(surround, keep, [this, &traits] {
            if (onEditObject)
                onEditObject(traits.object, 0);
        });
    }
    Label_DesRTFboxPic_ = new QLabel(&Of(Object::RTFbox));
    Label_DesRTFboxPic_->setObjectName("Label_DesRTFboxPic");
    Label_DesRTFboxPic_->setAttribute(Qt::WA_TransparentForMouseEvents);
}

// Pictures and texts are painted, not made of controls, so that they look as in the setup. What
// they show is in their accessible descriptions.
void DesignScreen::SetPaints()
{
    Of(Object::PicturesAnim).paint = [this](QImage& image, double scale) {
        image.fill(QColor(0x80, 0x80, 0x80));
        QPainter painter(&image);
        painter.setPen(QPen(Qt::white, scale));
        painter.drawRect(image.rect().adjusted(0, 0, -1, -1));
        BtDesPix_.PaintAbove("Växlingsbara bilder", painter, image.rect(), scale);
    };
    Of(Object::Logotype).paint = [this](QImage& image, double) {
        if (logotypeBox_.isMetafile)
            image.fill(PixelOf(logotypeBox_.BackColor));
        PaintSized(image, logotype_, image.width(), image.height());
    };
    Of(Object::TextBox).paint = [this](QImage& image, double scale) { PaintLabels(image, scale); };
    Of(Object::RTFbox).paint = [this](QImage& image, double scale) {
        image.fill(PixelOf(session_.project.DesRTFbox.RTFboxBackColor));
        QPainter painter(&image);
        // Below the file's name.
        const double top = scale * Label_DesRTFboxPic_->geometry().bottom();
        BtDesRTF_.Paint(painter, QRectF(image.rect()).adjusted(0, top, 0, 0), scale);
    };
}

void DesignScreen::PaintSized(QImage& image, const ScalablePicture& picture, int width, int height)
{
    const Picture& sized = picture.InSize(width, height, letters_);
    const QImage shown(reinterpret_cast<const uchar*>(sized.pixels.data()), sized.width,
                       sized.height, QImage::Format_ARGB32_Premultiplied);
    QPainter(&image).drawImage(0, 0, shown);
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
            if (picture.IsEmpty())
                return;
            if (boxes_[i].isStretched)
                return PaintSized(image, picture, image.width(), image.height());
            const Picture& own = InOwnSize(picture, letters_, scale);
            PaintSized(image, picture, own.width, own.height);
        };
    }
}

void DesignScreen::BeginProject()
{
    reported_.clear();
    ForgetWhyMissing();
    ForgetPictures();
}

void DesignScreen::DrawDesBackground()
{
    section::DesBackground& background = session_.project.DesBackground;
    paint_.UsePicture = background.Type != Integer(BackgroundType::Colours);
    paint_.StretchPicture = background.StretchPicture != kOff;
    SetBlend(paint_, background);
    // Frees the picture that was shown.
    colorblendBackground_->Show(paint_);
    if (paint_.UsePicture)
        colorblendBackground_->Show(paint_, ReadBackground());
    else
        ShowWhyMissing(PictureStep::Background, {});
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
    std::optional<PictureError> failure = LayOutDesPictures();
    // Pictures that were kept from before may take the memory that this one needs.
    if (failure && failure->Fault() == PictureFault::TooLarge) {
        ForgetPictures();
        failure = LayOutDesPictures();
    }
    session_.ask.ShowBusyPointer(false);
    if (failure)
        TellPictureError(PictureStep::Pictures, *failure);
    else
        TellShown(PictureStep::Pictures);
    ShowPictures();
}

void DesignScreen::ShowPictures()
{
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        DesPicture_[i]->setAccessibleDescription(
            ToQt(session_.project.DesPictures.Pictures[i].PictureFilename));
        ShowObject(*DesPicture_[i], boxes_[i].place, boxes_[i].isVisible);
    }
}

void DesignScreen::MovePicture(std::size_t index, const SurfacePlace& place)
{
    boxes_[index].place = place;
    // Also where the last reading ended before this picture.
    boxes_[index].isUnread = false;
    KeepPicturesInsideDesign(session_.project.DesPictures, boxes_, place_, session_.surface.screen);
    ShowPictures();
    session_.state.ProjectIsDirty = kOn;
}

void DesignScreen::DrawDesPicturesAnim()
{
    const section::DesPicturesAnim& record = session_.project.DesPicturesAnim;
    const ShownBox box = LayOutPicturesAnim(record, session_.surface.screen);
    DesignObject& object = Of(Object::PicturesAnim);
    object.setAccessibleDescription(ToQt(NumberText(record.NrAnimPictures) + " bilder"));
    ShowObject(object, box.place, box.isVisible);
}

void DesignScreen::DrawDesLogotype()
{
    const section::DesLogotype& record = session_.project.DesLogotype;
    session_.ask.ShowBusyPointer(true);
    logotype_ = {};
    logotypeBox_ = {};
    const auto failure = PictureErrorOf([&] {
        logotypeBox_ = LayOutLogotype(record, SurroundOfLogotype(),
                                      [this](const Text&) { return ReadDesLogotype(); });
    });
    session_.ask.ShowBusyPointer(false);
    if (failure)
        TellPictureError(PictureStep::Logotype, *failure);
    else if (!logotypeBox_.isTooLarge)
        TellShown(PictureStep::Logotype);
    else
        TellTooLargeLogotype();
    DesignObject& object = Of(Object::Logotype);
    object.setAccessibleDescription(ToQt(record.LogotypeFilename));
    ShowObject(object, logotypeBox_.place, logotypeBox_.isVisible);
}

LogotypeSurround DesignScreen::SurroundOfLogotype() const
{
    return {.surface = place_,
            .tabWidth = tabWidth_,
            .screen = session_.surface.screen,
            .paint = paint_,
            .isOnPicture = IsOnPicture(session_.project.DesBackground)};
}

void DesignScreen::DrawDesLogotypeBackColor()
{
    const section::DesBackground& background = session_.project.DesBackground;
    if (!IsMetafileName(session_.project.DesLogotype.LogotypeFilename))
        return;
    // Kept: the second colour of the record, also where a single colour is painted.
    logotypeBox_.BackColor =
        LogotypeBackColor(background.BackColor1, background.BackColor2, IsOnPicture(background));
    Of(Object::Logotype).update();
}

void DesignScreen::DrawDesTextBox()
{
    section::DesTextBox& record = session_.project.DesTextBox;
    const ScreenMetrics screen = session_.surface.screen;
    const TextBoxLayout layout =
        LayOutTextBox(record, place_, screen, colorblendBackground_->TitleBottom(),
                      TwipsDown(HeadingHeight(letters_, record), screen));
    DesignObject& object = Of(Object::TextBox);
    object.setAccessibleDescription(ToQt(record.BoxTitle + "\n" + record.BoxText));
    ShowObject(object, layout.box, layout.isVisible);
}

// Kept: here the box is always filled, whatever the record says for the setup.
void DesignScreen::PaintLabels(QImage& image, double scale)
{
    PaintTextPanel(CanvasOf(image), letters_, RectAt(0, 0, image.width(), image.height()),
                   session_.project.DesTextBox, {scale, scale}, true);
}

void DesignScreen::DrawDesRTFbox()
{
    section::DesRTFbox& record = session_.project.DesRTFbox;
    const ShownBox box = LayOutRTFbox(record, place_, session_.surface.screen);
    DesignObject& object = Of(Object::RTFbox);
    object.setAccessibleDescription(ToQt(record.RTFfilename));
    Label_DesRTFboxPic_->setText(ToQt(record.RTFfilename));
    // Readable on the box's own colour, whatever colours the desktop has.
    QPalette palette = Label_DesRTFboxPic_->palette();
    const bool isDark = qGray(PixelOf(record.RTFboxBackColor)) < 128;
    palette.setColor(QPalette::WindowText, isDark ? Qt::white : Qt::black);
    Label_DesRTFboxPic_->setPalette(palette);
    Label_DesRTFboxPic_->move(PixelsOf(kRTFNameLeft, session_.surface.screen.TPPX),
                              PixelsOf(kRTFNameTop, session_.surface.screen.TPPY));
    Label_DesRTFboxPic_->adjustSize();
    ShowObject(object, box.place, box.isVisible);
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
    for (const auto& [kind, object] : objects_)
        object->hide();
    ForgetWhyMissing();
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
    // A window on two screens.
    const QSize size = colorblendBackground_->size();
    if (paint_.UsePicture && backgroundRoom_.expandedTo(size) != backgroundRoom_)
        DrawDesBackground();
}

void DesignScreen::ShowObject(DesignObject& object, const SurfacePlace& place, bool isVisible)
{
    object.PlaceAt(place);
    object.setVisible(isVisible);
}

Long DesignScreen::ScreenHeightInPixels() const
{
    const ScreenMetrics metrics = session_.surface.screen;
    return quillon::ScreenHeightInPixels(TwipsDown(screen()->size().height(), metrics), metrics);
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
