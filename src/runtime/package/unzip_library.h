// The face of DUNZIP32.DLL, the library that unpacks a package's files: plain C, so that program
// and library share nothing but these declarations and zlib's record of a stream. What an archive
// says of itself is read by the setup, which catches what is wrong with it.
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
