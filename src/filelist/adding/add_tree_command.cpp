#include "filelist/adding/add_tree_command.h"

#include "filelist/adding/add_target.h"
#include "helpers/windows_path.h"

namespace quillon {

namespace {

constexpr const char* kOnlyADrive =
    "Du har inte valt en katalog utan endast en enhet. Du kan addera samtliga kataloger och filer "
    "från denna enhet men det kan ta lång tid. Vill du verkligen fortsätta?";

} // namespace

std::optional<TreeToAdd> ChooseTree(const ListWork& work)
{
    Text& lastTreeDirectory = work.state.LastAddDirectory;
    const auto folder = work.ask.SelectDir("Välj den katalog vars filer och underkataloger ska "
                                           "adderas till fillistan.",
                                           lastTreeDirectory);
    if (!folder || folder->empty())
        return std::nullopt;
    if (IsDriveRoot(*folder) && !work.ask.YesNo("Info", kOnlyADrive, Ask::Stops::OnNo))
        return std::nullopt;
    lastTreeDirectory = *folder;
    const auto target = ChooseComponentTarget(work);
    if (!target)
        return std::nullopt;
    return TreeToAdd{.StartDirectory = *folder,
                     .BaseDestination = target->Destination,
                     .ComponentNr = target->ComponentNr};
}

Text TreeFormCaption(TreeForm form, const Text& baseDestination)
{
    if (form == TreeForm::ReplaceStart)
        return "&Ersätt startnivå i katalogträdet med '" + baseDestination + "'";
    return "&Addera katalogträd till '" + baseDestination + "'  (" + baseDestination + "+träd)";
}

} // namespace quillon
