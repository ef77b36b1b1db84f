#include "design/forms/choose_file.h"

#include "actions/kept_path.h"
#include "project/text_limits.h"

namespace quillon {

namespace {

constexpr const char* kPictureFilter =
    "Alla bildfiler (*.bmp;*.jpg)|*.bmp;*.jpg|Bitmappar (*.bmp)|*.bmp|JPEG-bilder (*.jpg)|*.jpg";
constexpr const char* kPictureOrMetafileFilter =
    "Alla bildfiler|*.bmp;*.wmf;*.jpg|Bitmappar (*.bmp)|*.bmp|Metafiler (*.wmf)|*.wmf|JPEG-bilder "
    "(*.jpg)|*.jpg";
constexpr const char* kSoundFilter = "Ljud (*.wav;*.mid;*.mp3)|*.wav;*.mid;*.mp3";

constexpr PathKind kPicture{"Bilden", "Lägg bilden i en katalog närmare roten."};
constexpr PathKind kSound{"Ljudfilen", "Lägg ljudfilen i en katalog närmare roten."};

FileQuestion QuestionOf(DesignFile kind)
{
    switch (kind) {
    case DesignFile::BackgroundPicture:
        return {.title = "Välj bakgrundsbild", .filter = kPictureFilter};
    case DesignFile::ChangingPicture:
        return {.title = "Välj bild", .filter = kPictureFilter};
    case DesignFile::Sound:
        return {.title = "Välj ljudfil", .filter = kSoundFilter};
    case DesignFile::FreePicture:
        break;
    }
    return {.title = "Välj bild", .filter = kPictureOrMetafileFilter};
}

} // namespace

std::optional<Text> ChooseDesignFile(DesignFile kind, Text& folder, Ask& ask)
{
    using section::DesBackground;
    // All of the design's files have the room of this one.
    static const int kMaxPath = MaxTextLength(&DesBackground::PictureFilename);
    return ChooseKeptPath(QuestionOf(kind), folder, kMaxPath,
                          kind == DesignFile::Sound ? kSound : kPicture, ask);
}

} // namespace quillon
