// DUNZIP32.DLL: reads a package's archives for the setup. No exception leaves it.
#include "archive/zip_reader.h"
#include "platform/run_error.h"
#include "platform/win32/open_file.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win_failure.h"
#include "runtime/unzip_library.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <new>

using namespace quillon;

struct QnUnzipArchive {
    ZipReader reader;
};

namespace {

struct StoppedBySink {};

// By itself: the system's files as a whole would bring all that can be done with them.
std::unique_ptr<InputFile> OpenArchive(const Text& path)
{
    constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    FileHandle file(CreateFileW(WidePath(path).c_str(), GENERIC_READ, kShareAll, nullptr,
                                OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.IsOpen())
        FailAsWindowsSays(path);
    return std::make_unique<WinInputFile>(std::move(file), path);
}

int CodeOf(ZipError::Kind kind)
{
    switch (kind) {
    case ZipError::Kind::NotAnArchive:
        return QnUnzipNotAnArchive;
    case ZipError::Kind::Damaged:
        return QnUnzipDamaged;
    case ZipError::Kind::WrongPassword:
        return QnUnzipWrongPassword;
    case ZipError::Kind::Unsupported:
        break;
    }
    return QnUnzipUnsupported;
}

int Report(QnUnzipFailure* failure, int code, std::string_view what)
{
    const std::size_t length = std::min(what.size(), sizeof failure->what - 1);
    std::memcpy(failure->what, what.data(), length);
    failure->what[length] = 0;
    return code;
}

template <class Work>
int Guarded(QnUnzipFailure* failure, Work work)
{
    try {
        work();
        return QnUnzipOk;
    } catch (const StoppedBySink&) {
        return QnUnzipStopped;
    } catch (const ZipError& error) {
        return Report(failure, CodeOf(error.Reason()), error.what());
    } catch (const RunError& error) {
        return Report(failure, QnUnzipRunError + error.Number(), error.Path());
    } catch (const std::exception& error) {
        return Report(failure, QnUnzipOutOfMemory, error.what());
    }
}

} // namespace

// The linker knows from the .def file that others call these; the compiler has to be told.
extern "C" {

[[gnu::externally_visible]] int QnUnzipOpen(const char* path, QnUnzipArchive** archive,
                                            QnUnzipFailure* failure)
{
    *archive = nullptr;
    return Guarded(failure, [&] { *archive = new QnUnzipArchive{ZipReader(OpenArchive(path))}; });
}

[[gnu::externally_visible]] size_t QnUnzipEntryCount(const QnUnzipArchive* archive)
{
    return archive->reader.Entries().size();
}

[[gnu::externally_visible]] void QnUnzipEntryInfo(const QnUnzipArchive* archive, size_t index,
                                                  QnUnzipEntry* entry)
{
    const ZipEntry& from = archive->reader.Entries()[index];
    *entry = {};
    entry->name = from.name.c_str();
    entry->comment = from.comment.c_str();
    entry->size = from.size;
    entry->packedSize = from.packedSize;
    entry->headerPosition = from.headerPosition;
    entry->crc = from.crc;
    entry->method = from.method;
    entry->year = static_cast<uint16_t>(from.modified.year);
    entry->month = static_cast<uint8_t>(from.modified.month);
    entry->day = static_cast<uint8_t>(from.modified.day);
    entry->hour = static_cast<uint8_t>(from.modified.hour);
    entry->minute = static_cast<uint8_t>(from.modified.minute);
    entry->second = static_cast<uint8_t>(from.modified.second);
    entry->isStored = from.isStored;
    entry->isEncrypted = from.isEncrypted;
}

[[gnu::externally_visible]] int QnUnzipExtract(QnUnzipArchive* archive, size_t index,
                                               const char* password, QnUnzipSink sink,
                                               void* context, QnUnzipFailure* failure)
{
    return Guarded(failure, [&] {
        archive->reader.Extract(archive->reader.Entries()[index], password,
                                [&](std::span<const std::byte> bytes) {
                                    if (sink(context, bytes.data(), bytes.size()) != 0)
                                        throw StoppedBySink();
                                });
    });
}

[[gnu::externally_visible]] void QnUnzipClose(QnUnzipArchive* archive)
{
    delete archive;
}

} // extern "C"
