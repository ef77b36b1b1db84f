// The face of DUNZIP32.DLL, the library that reads a package's archives: plain C, so that program
// and library need to share nothing but these declarations. Texts are UTF-8.
#pragma once

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef struct QnUnzipArchive QnUnzipArchive;

typedef struct QnUnzipEntry {
    const char* name; // these two live as long as the archive is open
    const char* comment;
    uint64_t size;
    uint64_t packedSize;
    uint64_t headerPosition;
    uint32_t crc;
    uint16_t method;
    uint16_t year;
    uint8_t month;
    uint8_t day;
    uint8_t hour;
    uint8_t minute;
    uint8_t second;
    uint8_t isStored;
    uint8_t isEncrypted;
} QnUnzipEntry;

enum {
    QnUnzipOk = 0,
    QnUnzipStopped = 1, // by the sink
    QnUnzipNotAnArchive = 2,
    QnUnzipDamaged = 3,
    QnUnzipWrongPassword = 4,
    QnUnzipUnsupported = 5,
    QnUnzipOutOfMemory = 6,
    QnUnzipRunError = 1000 // and the number of the failed file operation on top
};

// What went wrong, in English, cut to the size of the buffer.
typedef struct QnUnzipFailure {
    char what[256];
} QnUnzipFailure;

// Takes the next bytes; anything but 0 stops the extraction.
typedef int (*QnUnzipSink)(void* context, const void* bytes, size_t count);

typedef int (*QnUnzipOpenFunction)(const char* path, QnUnzipArchive** archive,
                                   QnUnzipFailure* failure);
typedef size_t (*QnUnzipEntryCountFunction)(const QnUnzipArchive* archive);
typedef void (*QnUnzipEntryInfoFunction)(const QnUnzipArchive* archive, size_t index,
                                         QnUnzipEntry* entry);
typedef int (*QnUnzipExtractFunction)(QnUnzipArchive* archive, size_t index, const char* password,
                                      QnUnzipSink sink, void* context, QnUnzipFailure* failure);
typedef void (*QnUnzipCloseFunction)(QnUnzipArchive* archive);

#ifdef __cplusplus
}
#endif
