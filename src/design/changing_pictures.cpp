#include "design/changing_pictures.h"

#include <algorithm>

namespace quillon {

std::vector<Text> ChangingPictures(const section::DesPicturesAnim& record)
{
    const std::size_t count = std::min<std::size_t>(
        static_cast<std::size_t>(std::max<Integer>(record.NrAnimPictures, 0)), record.P.size());
    return {record.P.begin(), record.P.begin() + static_cast<std::ptrdiff_t>(count)};
}

void SetChangingPictures(section::DesPicturesAnim& record, const std::vector<Text>& files)
{
    const std::size_t count = std::min(files.size(), record.P.size());
    std::ranges::fill(record.P, Text());
    std::copy_n(files.begin(), count, record.P.begin());
    record.NrAnimPictures = static_cast<Integer>(count);
}

bool MayAddChangingPicture(std::size_t count, Ask& ask)
{
    if (count < kMaxChangingPictures)
        return true;
    ask.Inform("Info", "Du kan ej lägga till fler bilder till listan! Du kan ha maximalt 20 "
                       "bilder!");
    return false;
}

} // namespace quillon
