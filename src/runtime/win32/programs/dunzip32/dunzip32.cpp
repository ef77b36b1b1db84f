// DUNZIP32.DLL: zlib for the setup. It needs nothing of the C++ library, whose exceptions alone are
// larger than all of it.
#include "runtime/package/unzip_library.h"

#include <zlib.h>

// The linker knows from the .def file that others call these; the compiler can't see that.
extern "C" {

[[gnu::externally_visible]] int QnUnzipBegin(z_stream_s* stream)
{
    return inflateInit2(stream, -MAX_WBITS);
}

[[gnu::externally_visible]] int QnUnzipGo(z_stream_s* stream, int flush)
{
    return inflate(stream, flush);
}

[[gnu::externally_visible]] int QnUnzipEnd(z_stream_s* stream)
{
    return inflateEnd(stream);
}

[[gnu::externally_visible]] unsigned long QnUnzipCrc(unsigned long crc, const unsigned char* bytes,
                                                     unsigned count)
{
    return crc32(crc, bytes, count);
}

} // extern "C"
