#include "design/rtf_box_file.h"

#include "helpers/windows_path.h"

namespace quillon {

Text ProposedRTFfilename(const Text& projectFileName)
{
    const Text name = ExtractFilename(projectFileName);
    const auto extension = LowerCase(name).find(".qnp");
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
    if (!typed.empty())
        return true;
    ask.Inform("Filnamn saknas",
               "Du måste ange ett filnamn till RTF-filen! RFT-filen kommer att sparas med det "
               "angivna filnamnet i underkatalogen '\\RTF' i Quillons program-katalog.");
    return false;
}

} // namespace quillon
