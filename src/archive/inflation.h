// What unpacking needs of zlib, as functions that are handed in: the setup takes them from the
// library that travels with each package, all other programs from the zlib that they are linked
// with.
#pragma once

struct z_stream_s;

namespace quillon {

struct Inflation {
    int (*begin)(z_stream_s* stream) = nullptr; // of a raw stream, without zlib's own header
    int (*go)(z_stream_s* stream, int flush) = nullptr;
    int (*end)(z_stream_s* stream) = nullptr;
    unsigned long (*crc)(unsigned long crc, const unsigned char* bytes, unsigned count) = nullptr;
};

Inflation LinkedInflation();

} // namespace quillon
