#include "runtime/win32/machine/library_container.h"

#include "archive/solid/package_container.h"
#include "platform/run_error.h"
#include "platform/win32/wide_text.h"
#include "runtime/package/unzip_library.h"

#include <windows.h>

namespace quillon {

namespace {

class Library {
public:
    explicit Library(const Text& path) : module_(LoadLibraryW(WidePath(path).c_str()))
    {
        if (module_ == nullptr)
            throw RunError(ErrorNumber::kFileNotFound, path);
        Find(functions_.begin, "QnUnzipBegin");
        Find(functions_.go, "QnUnzipGo");
        Find(functions_.end, "QnUnzipEnd");
        Find(functions_.crc, "QnUnzipCrc");
        // Of the library of a package with a solid container.
        Find(frames_.begin, "QnFramesBegin");
        Find(frames_.reset, "QnFramesReset");
        Find(frames_.go, "QnFramesGo");
        Find(frames_.end, "QnFramesEnd");
        if (functions_.begin && functions_.go && functions_.end && functions_.crc)
            return;
        FreeLibrary(module_);
        throw RunError(ErrorNumber::kFileNotFound, path);
    }
    ~Library() { FreeLibrary(module_); }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    const Inflation& Functions() const { return functions_; }
    const FrameDecoding& Frames() const { return frames_; }

private:
    template <class Function>
    void Find(Function& function, const char* name)
    {
        function =
            reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module_, name)));
    }

    HMODULE module_;
    Inflation functions_;
    FrameDecoding frames_;
};

class LibraryContainer : public Container {
public:
    LibraryContainer(const Text& libraryPath, std::unique_ptr<InputFile> archive)
        : library_(libraryPath),
          container_(OpenAnyContainer(std::move(archive), library_.Functions(), library_.Frames()))
    {
    }

    const std::vector<ZipEntry>& Entries() const override { return container_->Entries(); }
    void Extract(const ZipEntry& entry, const Text& password, const ZipReader::Sink& sink) override
    {
        container_->Extract(entry, password, sink);
    }

private:
    Library library_;
    std::unique_ptr<Container> container_;
};

} // namespace

OpenContainer LibraryContainers(Text libraryPath)
{
    return [libraryPath = std::move(libraryPath)](std::unique_ptr<InputFile> archive) {
        return std::make_unique<LibraryContainer>(libraryPath, std::move(archive));
    };
}

} // namespace quillon
