#include "builder/autorun_file.h"

#include "platform/whole_file.h"

namespace quillon {

void WriteAutorunFile(FileSystem& files, const Text& path, const Text& setupName)
{
    AnsiTextFile file(files, path);
    file.Line("[AutoRun]");
    file.Line("OPEN=" + setupName);
    file.Close();
}

} // namespace quillon
