// quillonc extract: the files of a package in plain folders, without installing anything. Nothing
// is written before all names are known to be new and inside.
#include "cli/calls.h"
#include "cli/package_source.h"
#include "formats/extracted_names.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "project/file_list.h"
#include "project/file_rows.h"

#include <algorithm>
#include <map>
#include <nlohmann/json.hpp>
#include <ostream>

namespace quillon::cli {

namespace {

using Sink = ZipReader::Sink;

struct ExtractedFile {
    Text label; // what a fault names
    Text path;
    bool isFolder = false;
    std::optional<LocalTime> modified;
    std::function<void(const Sink&)> read;
};

class Extraction {
public:
    Extraction(FileSystem& files, PackageSource& source, Text folder)
        : source_(source), files_(files), folder_(std::move(folder))
    {
    }

    /// Lists what there is; whatever can't be unpacked is a fault.
    void Plan()
    {
        faults = source_.package.faults;
        for (std::size_t row = 0; row < source_.package.rows.size(); ++row)
            PlanRow(row);
        PlanScreenFiles();
    }

    /// The files that are there already.
    std::vector<Text> Existing() const
    {
        std::vector<Text> found;
        for (const ExtractedFile& file : planned_)
            if (!file.isFolder && files_.FileExists(file.path))
                found.push_back(file.path);
        return found;
    }

    void Run()
    {
        for (const ExtractedFile& file : planned_) {
            try {
                WriteFile(file);
                written += file.isFolder ? 0U : 1U;
            } catch (const ZipError& error) {
                faults.push_back(file.label + ": innehållet är skadat (" + error.what() + ").");
            } catch (const RunError& error) {
                faults.push_back(file.label + ": " + FailureText(error, file.path));
            }
        }
    }

    std::size_t written = 0;
    std::vector<Text> faults;

private:
    void PlanRow(std::size_t number)
    {
        const InstallRow& row = source_.package.rows[number];
        const RowBytes& bytes = source_.package.bytes[number];
        const Text label = FileRowKey(row.number) + " '" + row.name + "'";
        const auto name = ExtractedName(row);
        if (!name)
            return faults.push_back(label + ": namnet eller destinationen leder ut ur katalogen.");
        ExtractedFile file{label, JoinPath(folder_, *name), row.name == kEmptyFolderName, {}, {}};
        if (!file.isFolder) {
            if (bytes.place == RowBytes::Place::Missing)
                return faults.push_back(label + ": filen saknas i paketet.");
            if (bytes.place == RowBytes::Place::None)
                return;
            file.modified = ModifiedOf(bytes);
            file.read = [this, number](const Sink& sink) {
                ExtractRow(files_, source_.package, number, sink);
            };
        }
        Add(std::move(file));
    }

    std::optional<LocalTime> ModifiedOf(const RowBytes& bytes) const
    {
        if (bytes.modified)
            return bytes.modified;
        if (bytes.place == RowBytes::Place::Container)
            return source_.package.container->Entries()[bytes.entry].modified;
        return files_.Status(bytes.path).modified;
    }

    void PlanScreenFiles()
    {
        const Text path = JoinPath(source_.package.folder, kDesignContainerName);
        if (!files_.FileExists(path))
            return;
        try {
            screen_.emplace(files_.OpenInput(path));
        } catch (const ZipError& error) {
            return faults.push_back(Text(kDesignContainerName) + ": innehållet är skadat (" +
                                    error.what() + ").");
        }
        for (const ZipEntry& entry : screen_->Entries()) {
            const Text label = Text(kDesignContainerName) + " '" + entry.name + "'";
            const auto name = ExtractedScreenName(entry.name);
            if (!name)
                faults.push_back(label + ": namnet leder ut ur katalogen.");
            else
                Add({label, JoinPath(folder_, *name), false, entry.modified,
                     [this, &entry](const Sink& sink) { screen_->Extract(entry, {}, sink); }});
        }
    }

    // Windows knows one name only, whatever its case.
    void Add(ExtractedFile file)
    {
        const auto [first, isNew] = labels_.try_emplace(LowerCase(file.path), file.label);
        if (isNew)
            planned_.push_back(std::move(file));
        else if (!file.isFolder)
            faults.push_back(file.label + ": hamnar på samma plats som " + first->second + ".");
    }

    void WriteFile(const ExtractedFile& file)
    {
        const Text folder = file.isFolder ? file.path : ExtractDirectory(file.path);
        if (!files_.DirExists(folder) && !files_.DirCreate(folder))
            throw RunError(ErrorNumber::kPathFileAccess, folder);
        CheckInside(folder);
        if (file.isFolder)
            return;
        // A link in the place of a file is removed; what it leads to stays.
        if (files_.FileExists(file.path))
            files_.RemoveFile(file.path);
        const auto output = files_.OpenNew(file.path);
        if (!output)
            throw RunError(ErrorNumber::kPathFileAccess, file.path);
        try {
            file.read([&](std::span<const std::byte> bytes) { output->Write(bytes); });
            output->Close();
        } catch (...) {
            RunErrorNumber([&] { files_.RemoveFile(file.path); });
            throw;
        }
        if (file.modified)
            RunErrorNumber([&] { files_.SetModified(file.path, *file.modified); });
    }

    /// A link in the user's folder may lead elsewhere.
    void CheckInside(const Text& folder) const
    {
        const Text root = LowerCase(RemoveLastBackslash(files_.RealPath(folder_))) + "\\";
        if (!(LowerCase(files_.RealPath(folder)) + "\\").starts_with(root))
            throw RunError(ErrorNumber::kPermissionDenied, folder);
    }

    PackageSource& source_;
    FileSystem& files_;
    Text folder_;
    std::optional<ZipReader> screen_;
    std::vector<ExtractedFile> planned_;
    std::map<Text, Text> labels_; // by path in lower case
};

Exit Report(const CallContext& context, const PackageSource& source, const Text& folder,
            const Extraction& extraction)
{
    const Exit exit = extraction.faults.empty() ? Exit::Done : Exit::Stopped;
    if (context.WantsJson()) {
        Json object = {{"package", source.path},
                       {"folder", folder},
                       {"files", extraction.written},
                       {"faults", extraction.faults}};
        if (source.isProgram)
            object["signature"] = SignatureJson(source.signature);
        return context.PrintJson(std::move(object), exit);
    }
    for (const Text& fault : extraction.faults)
        context.err << fault << "\n";
    if (source.isProgram)
        context.out << SignatureLine(source.signature) << "\n";
    context.out << extraction.written << " filer i '" << folder << "'.\n";
    return exit;
}

} // namespace

Exit ExtractPackage(const CallContext& context)
{
    PackageSource source = OpenPackageSource(context, context.PathOperand(0));
    const Text folder = context.Path(context.RequireValue("--to"));
    Extraction extraction(context.host.files, source, folder);
    extraction.Plan();
    const std::vector<Text> existing = extraction.Existing();
    if (!existing.empty() && !context.arguments.Has("--overwrite"))
        throw CallFailure{"Filen '" + existing.front() +
                              "' finns redan; --overwrite skriver över filer.",
                          Exit::Stopped};
    if (!context.host.files.DirExists(folder) && !context.host.files.DirCreate(folder))
        throw CallFailure{FailureText(RunError(ErrorNumber::kPathFileAccess), folder),
                          Exit::Stopped};
    extraction.Run();
    return Report(context, source, folder, extraction);
}

} // namespace quillon::cli
