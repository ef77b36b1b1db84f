#include "design/rtf_box_file.h"

#include "helpers/windows_name.h"
#include "helpers/windows_path.h"
#include "platform/saved_file.h"
#include "platform/whole_file.h"

namespace quillon {

Text ProposedRTFfilename(const Text& projectFileName)
{
    const Text name = ExtractFilename(projectFileName);
    const auto extension = LowerCase(name).rfind(".qnp");
    if (extension == Text::npos)
        return "rtf";
    return name.substr(0, extension + 1) + "rtf";
}

Text StoredRTFfilename(const Text& typed)
{
    return ContainsText(LowerCase(typed), ".rtf") ? typed : typed + ".rtf";
}

bool CheckRTFfilename(const Text& typed, Ask& ask)
{
    if (typed.empty()) {
        ask.Inform("Filnamn saknas",
                   "Du måste ange ett filnamn till RTF-filen! RFT-filen kommer att sparas med det "
                   "angivna filnamnet i underkatalogen '\\RTF' i Quillons program-katalog.");
        return false;
    }
    if (FaultOfName(StoredRTFfilename(typed)) != PathFault::None) {
        ask.Critical("Felaktigt filnamn", "'" + typed +
                                              "' kan ej vara namnet på en fil. Ange ett filnamn "
                                              "utan katalog.");
        return false;
    }
    return true;
}

void SaveRTFbox(FileSystem& files, const Text& path, std::string_view bytes, OldRtfFile old)
{
    const Text unfinished = path + ".tmp";
    files.DirCreate(ExtractDirectory(path));
    if (old == OldRtfFile::Kept && files.FileExists(path))
        KeepBeside(files, path);
    WriteWholeFile(files, unfinished, bytes);
    files.Replace(unfinished, path);
}

void ReportRtfLosses(const std::vector<Text>& losses, bool isCut, const Text& path, Ask& ask)
{
    if (losses.empty() && !isCut)
        return;
    Text text;
    if (isCut)
        text = "Filen '" + path + "' är inte hel. Rutan visar det som finns av texten.";
    for (const Text& loss : losses)
        text += (&loss == &losses.front()
                     ? Text(text.empty() ? "" : "\r\n\r\n") + "Filen '" + path + "' innehåller "
                     : Text(", ")) +
                loss;
    if (!losses.empty())
        text += ", som inte kan visas i rutan.";
    ask.Warn("RTF-ruta", text + " Trycker du på 'OK' behålls den gamla filen bredvid den nya, med "
                                ".bak efter namnet.");
}

} // namespace quillon
