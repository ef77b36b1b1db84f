#include "design/overview.h"

#include "design/changing_pictures.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"

#include <algorithm>

namespace quillon {

namespace {

struct DesignFile {
    Text label;
    Text path;
};

std::vector<DesignFile> DesignFiles(const Project& project, const FileSystem& files,
                                    const RTFboxFolders& texts)
{
    std::vector<DesignFile> list;
    const section::DesRTFbox& box = project.DesRTFbox;
    if (!box.RTFfilename.empty() && box.ShowRTFbox != kOff)
        list.push_back({"RTF-ruta", PathIn(files, texts, box.RTFfilename)});
    for (std::size_t i = 0; i < section::kDesPictureCount; ++i)
        if (const Text& file = project.DesPictures.Pictures[i].PictureFilename; !file.empty())
            list.push_back({"Bild " + NumberText(std::int64_t(i) + 1), file});
    std::int64_t number = 0;
    for (const Text& file : ChangingPictures(project.DesPicturesAnim))
        list.push_back({"Växl. Bild " + NumberText(++number), file});
    if (const Text& file = project.DesLogotype.LogotypeFilename; !file.empty())
        list.push_back({"Logotype", file});
    if (const Text& file = project.DesSound.BackSoundFilename; !file.empty())
        list.push_back({"Ljud", file});
    return list;
}

// The pattern's blanks are always printed, so a short number has some in front.
Text SizeText(std::uint64_t bytes)
{
    const Text padded = FormatNumber(static_cast<double>(bytes), "### ### ###", ',');
    return padded.substr(std::min(padded.find_first_not_of(' '), padded.size()));
}

} // namespace

std::vector<OverviewRow> DesOverview(const Project& project, const FileSystem& files,
                                     const RTFboxFolders& texts)
{
    std::vector<OverviewRow> rows;
    try {
        for (const auto& [label, path] : DesignFiles(project, files, texts))
            rows.push_back({label, ExtractFilename(path), SizeText(files.Status(path).size)});
    } catch (const RunError&) {
        // the rows up to here are the list
    }
    return rows;
}

} // namespace quillon
