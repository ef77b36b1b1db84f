#include "runtime/win32/library_container.h"

#include "platform/run_error.h"
#include "platform/win32/wide_text.h"
#include "runtime/unzip_library.h"

#include <windows.h>

#include <exception>

namespace quillon {

namespace {

class Library {
public:
    explicit Library(const Text& path) : module_(LoadLibraryW(WidePath(path).c_str()))
    {
        if (module_ == nullptr)
            throw RunError(ErrorNumber::kFileNotFound, path);
        Find(open, "QnUnzipOpen");
        Find(entryCount, "QnUnzipEntryCount");
        Find(entryInfo, "QnUnzipEntryInfo");
        Find(extract, "QnUnzipExtract");
        Find(close, "QnUnzipClose");
        if (!open || !entryCount || !entryInfo || !extract || !close)
            throw RunError(ErrorNumber::kFileNotFound, path);
    }
    ~Library() { FreeLibrary(module_); }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    QnUnzipOpenFunction open = nullptr;
    QnUnzipEntryCountFunction entryCount = nullptr;
    QnUnzipEntryInfoFunction entryInfo = nullptr;
    QnUnzipExtractFunction extract = nullptr;
    QnUnzipCloseFunction close = nullptr;

private:
    template <class Function>
    void Find(Function& function, const char* name)
    {
        function =
            reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module_, name)));
    }

    HMODULE module_;
};

void ThrowFailure(int code, const QnUnzipFailure& failure)
{
    if (code > QnUnzipRunError)
        throw RunError(code - QnUnzipRunError, failure.what);
    switch (code) {
    case QnUnzipOk:
        return;
    case QnUnzipNotAnArchive:
        throw ZipError(ZipError::Kind::NotAnArchive, failure.what);
    case QnUnzipWrongPassword:
        throw ZipError(ZipError::Kind::WrongPassword, failure.what);
    case QnUnzipUnsupported:
        throw ZipError(ZipError::Kind::Unsupported, failure.what);
    default:
        throw ZipError(ZipError::Kind::Damaged, failure.what);
    }
}

// An exception of ours can't pass through the library, so it waits here until the call returns.
struct SinkCall {
    const ZipReader::Sink& sink;
    std::exception_ptr thrown;
};

int PassOn(void* context, const void* bytes, size_t count)
{
    auto& call = *static_cast<SinkCall*>(context);
    try {
        call.sink(std::span(static_cast<const std::byte*>(bytes), count));
        return 0;
    } catch (...) {
        call.thrown = std::current_exception();
        return 1;
    }
}

class LibraryContainer : public Container {
public:
    LibraryContainer(const Text& libraryPath, const Text& path) : library_(libraryPath)
    {
        QnUnzipFailure failure{};
        ThrowFailure(library_.open(path.c_str(), &archive_, &failure), failure);
        for (std::size_t i = 0; i < library_.entryCount(archive_); ++i)
            entries_.push_back(EntryAt(i));
    }
    ~LibraryContainer() override { library_.close(archive_); }
    LibraryContainer(const LibraryContainer&) = delete;
    LibraryContainer& operator=(const LibraryContainer&) = delete;

    const std::vector<ZipEntry>& Entries() const override { return entries_; }

    void Extract(const ZipEntry& entry, const Text& password, const ZipReader::Sink& sink) override
    {
        const auto index = static_cast<std::size_t>(&entry - entries_.data());
        QnUnzipFailure failure{};
        SinkCall call{sink, nullptr};
        const int code =
            library_.extract(archive_, index, password.c_str(), PassOn, &call, &failure);
        if (call.thrown)
            std::rethrow_exception(call.thrown);
        ThrowFailure(code, failure);
    }

private:
    ZipEntry EntryAt(std::size_t index) const
    {
        QnUnzipEntry from{};
        library_.entryInfo(archive_, index, &from);
        ZipEntry entry;
        entry.name = from.name;
        entry.comment = from.comment;
        entry.size = from.size;
        entry.packedSize = from.packedSize;
        entry.headerPosition = from.headerPosition;
        entry.crc = from.crc;
        entry.method = from.method;
        entry.modified = {from.year, from.month, from.day, from.hour, from.minute, from.second};
        entry.isStored = from.isStored != 0;
        entry.isEncrypted = from.isEncrypted != 0;
        return entry;
    }

    Library library_;
    QnUnzipArchive* archive_ = nullptr;
    std::vector<ZipEntry> entries_;
};

} // namespace

OpenContainer LibraryContainers(Text libraryPath)
{
    return [libraryPath = std::move(libraryPath)](const Text& path) {
        return std::make_unique<LibraryContainer>(libraryPath, path);
    };
}

} // namespace quillon
