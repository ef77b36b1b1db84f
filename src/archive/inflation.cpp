#include "archive/inflation.h"

#include <zlib.h>

namespace quillon {

Inflation LinkedInflation()
{
    return {[](z_stream_s* stream) { return inflateInit2(stream, -MAX_WBITS); }, inflate,
            inflateEnd,
            [](unsigned long crc, const unsigned char* bytes, unsigned count) {
                return crc32(crc, bytes, count);
            }};
}

} // namespace quillon
