#include "importers/mfc_control.h"

#include "helpers/windows_path.h"
#include "importers/program_on_disk.h"

#include <algorithm>

namespace quillon {

bool NeedsMfc(const ImportData& data, Host host, const Text& fileName)
{
    if (data.IsMfcControl(fileName))
        return true;
    // A name with a folder is no control of the system folder, whatever file it leads to.
    if (HasFolder(fileName))
        return false;
    const auto info =
        InfoOfProgram(host.files, LowerCase(JoinPath(host.machine.GetSystemDir(), fileName)));
    return info && std::ranges::any_of(info->imports, [](const Text& library) {
               return EqualIgnoreCase(library, "Mfc42.dll");
           });
}

} // namespace quillon
