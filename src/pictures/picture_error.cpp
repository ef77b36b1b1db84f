#include "pictures/picture_error.h"

#include "design/surface.h"

namespace quillon {

namespace {

int NumberOf(PictureFault fault)
{
    switch (fault) {
    case PictureFault::NotFound:
        return ErrorNumber::kFileNotFound;
    case PictureFault::Unreadable:
        return ErrorNumber::kPathFileAccess;
    case PictureFault::TooLarge:
        return ErrorNumber::kOutOfMemory;
    default:
        return kInvalidPicture;
    }
}

} // namespace

PictureError::PictureError(PictureFault fault, const Text& file)
    : RunError(NumberOf(fault), file), fault_(fault)
{
}

Text PictureFaultText(PictureFault fault, const Text& file)
{
    const Text named = "Filen '" + file + "' ";
    switch (fault) {
    case PictureFault::NotFound:
        return named + "finns inte.";
    case PictureFault::Unreadable:
        return named + "kan ej läsas.";
    case PictureFault::Damaged:
        return named + "är skadad.";
    case PictureFault::TooLarge:
        return named + "är en för stor bild.";
    default:
        return named + "är ingen bild i BMP, JPEG eller WMF.";
    }
}

Text PictureFaultAdvice(PictureFault fault)
{
    switch (fault) {
    case PictureFault::NotFound:
        return "Lägg tillbaka den eller välj en annan bild.";
    case PictureFault::Unreadable:
        return "Kontrollera att du får läsa den.";
    case PictureFault::TooLarge:
        return "Välj en mindre bild, eller mindre bilder bredvid den.";
    default:
        return "Välj en annan bild.";
    }
}

} // namespace quillon
