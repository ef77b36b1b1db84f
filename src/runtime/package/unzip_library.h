// The interface of DUNZIP32.DLL, the library that unpacks a package's files: plain C, so that
// program and library share only these declarations and zlib's record of a stream. The setup reads
// the archive's own data, and reports what is wrong with them.
#pragma once

#include "archive/solid/frame_decoding.h"

struct z_stream_s;

extern "C" {

int QnUnzipBegin(z_stream_s* stream); // of raw deflate
int QnUnzipGo(z_stream_s* stream, int flush);
int QnUnzipEnd(z_stream_s* stream);
unsigned long QnUnzipCrc(unsigned long crc, const unsigned char* bytes, unsigned count);

// Only in the library of a package with a solid container.
void* QnFramesBegin(int maxWindowLog);
void QnFramesReset(void* decoder);
int QnFramesGo(void* decoder, quillon::FrameStep* step); // a `FrameState`
void QnFramesEnd(void* decoder);
}
