#include "builder/compression_setup.h"

namespace quillon {

Integer CompressionLevel(const CreateForm& form)
{
    return form.UseCompression != 0 ? kDeflateLevel : kStoredLevel;
}

void InitCompression(CreateRun& run, Integer level)
{
    const Text workPath = run.options.UseTempZipPath != kOff ? run.options.TempZipPath : Text();
    run.compression.IfcInitDynaZipStruct(workPath, run.options.CreateZipLogFile != kOff ? 1 : 0,
                                         level);
    run.compression.IfcResetFileList();
}

} // namespace quillon
