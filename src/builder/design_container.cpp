#include "builder/design_container.h"

#include "builder/compression_setup.h"
#include "builder/design_objects.h"
#include "builder/remove_quietly.h"
#include "builder/source_address.h"
#include "helpers/windows_path.h"

namespace quillon {

namespace {

Step TellMissingObject(CreateRun& run, const Text& path)
{
    run.compression.IfcFreeFileList();
    run.ask.AddStatusLine("Kan ej kopiera '" + path + "'!");
    run.ask.Critical("Hittar inte objekt",
                     "Hittar inte filen '" + path +
                         "'! Den har antingen raderats, bytt namn eller flyttats till en annan "
                         "katalog. Avbryter processen!");
    run.ask.AddStatusLine("Processen avbruten!");
    return Step::Stop;
}

// Kept: no status line reports a failed design container.
void StoreUnreportedFailure(CreateRun& run)
{
    run.isIncomplete = true;
    run.compressionFailure = run.compression.LastFailure();
}

} // namespace

Step CreateDesignContainer(CreateRun& run)
{
    InitCompression(run, kDeflateLevel);
    run.ask.AddStatusLine("Öppnar DESOBJ.DAT");
    for (const DesignObject& object : DesignObjects(run.project, run.host.files, run.options)) {
        if (object.isCheckedFirst && !run.host.files.FileExists(object.path))
            return TellMissingObject(run, object.path);
        run.compression.IfcAddFileListItem(
            ConvertLongFilenameToShortFilename(run.host.files, object.path));
        run.ask.AddStatusLine("Adderar '" + ExtractFilename(object.path) + "'");
    }

    run.ask.AddStatusLine("Kopierar och komprimerar filer");
    const Text target = run.InDestination(kDesignContainerName);
    RemoveQuietly(run.host.files, target);
    const Integer result = run.compression.IfcCreateDesignZipFile(target);
    run.compression.IfcFreeFileList();
    run.ask.AddStatusLine("Stänger DESOBJ.DAT");
    if (result == CompressionResult::kNothingToDo)
        run.ask.AddStatusLine("Inga skärmobjekt kopierade - raderar DESOBJ.DAT");
    else if (result > CompressionResult::kDone)
        StoreUnreportedFailure(run);
    else
        run.packageFiles.push_back(kDesignContainerName);
    return Step::GoOn;
}

} // namespace quillon
