#include "importers/mfc_control.h"

#include "helpers/windows_path.h"
#include "importers/program_on_disk.h"

#include <algorithm>

namespace quillon {

bool NeedsMfc(const ImportData& data, Host host, const Text& fileName)
{
    if (data.IsMfcControl(fileName))
        return true;
    // The system folder has no such control, whatever file the name may lead to.
    if (HasFolder(fileName))
        return false;
    const auto info =
        InfoOfProgram(host.files, LowerCase(JoinPath(host.machine.GetSystemDir(), fileName)));
    return info && std::ranges::any_of(info->imports, [](const Text& library) {
               return EqualIgnoreCase(library, "Mfc42.dll");
           });
}

} // namespace quillon
