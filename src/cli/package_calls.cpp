// quillonc list and quillonc verify: what is in a finished package, and whether it is whole.
#include "cli/calls.h"
#include "cli/medium_words.h"
#include "cli/package_source.h"
#include "formats/served_rows.h"
#include "helpers/hex.h"
#include "helpers/number_text.h"
#include "project/file_rows.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <ostream>

namespace quillon::cli {

namespace {

Text CrcText(std::uint32_t crc)
{
    Text digits;
    for (const unsigned shift : {24U, 16U, 8U, 0U})
        AppendHexByte(digits, static_cast<unsigned char>(crc >> shift & 0xFFU), kHexDigits);
    return digits;
}

Text SizeText(std::uint64_t size)
{
    return NumberText(static_cast<std::int64_t>(size));
}

const char* PlaceName(RowBytes::Place place)
{
    switch (place) {
    case RowBytes::Place::Container:
        return "container";
    case RowBytes::Place::LooseFile:
        return "file";
    case RowBytes::Place::Missing:
        return "missing";
    default:
        return "none";
    }
}

Json RowJson(const Package& package, std::size_t number)
{
    const InstallRow& row = package.rows[number];
    const RowBytes& bytes = package.bytes[number];
    Json object = {{"row", FileRowKey(row.number)},
                   {"name", row.name},
                   {"destination", row.destination},
                   {"component", ComponentNumberOf(row)},
                   {"size", row.size},
                   {"place", PlaceName(bytes.place)}};
    if (bytes.place == RowBytes::Place::Container) {
        const ZipEntry& entry = package.container->Entries()[bytes.entry];
        object["entry"] = entry.name;
        Json rows = Json::array();
        for (const ServedRow& served : ServedRows(entry.comment))
            rows.push_back(FileRowKey(served.number));
        object["entryRows"] = std::move(rows);
        object["entrySize"] = entry.size;
        object["packedSize"] = entry.isSolid ? Json() : Json(entry.packedSize);
        object["crc"] = entry.hasCrc ? Json(CrcText(entry.crc)) : Json();
    } else if (!bytes.path.empty()) {
        object["path"] = bytes.path;
    }
    return object;
}

using Table = std::vector<std::vector<Text>>;

/// Numbers are right-aligned in their columns.
void PrintTable(std::ostream& out, const Table& table)
{
    constexpr std::size_t kFirstNumber = 3;
    constexpr std::size_t kLastNumber = 4;
    std::vector<std::size_t> widths;
    for (const auto& line : table)
        for (std::size_t i = 0; i < line.size(); ++i) {
            widths.resize(std::max(widths.size(), i + 1));
            widths[i] = std::max(widths[i], CharacterCount(line[i]));
        }
    for (const auto& line : table) {
        Text printed;
        for (std::size_t i = 0; i < line.size(); ++i) {
            const Text blanks(widths[i] - CharacterCount(line[i]), ' ');
            const bool isRight = i >= kFirstNumber && i <= kLastNumber;
            printed += (i > 0 ? "  " : "") + (isRight ? blanks + line[i] : line[i] + blanks);
        }
        printed.resize(printed.find_last_not_of(' ') + 1);
        out << printed << "\n";
    }
}

std::vector<Text> RowLine(const Package& package, std::size_t number)
{
    const InstallRow& row = package.rows[number];
    const RowBytes& bytes = package.bytes[number];
    std::vector<Text> line = {FileRowKey(row.number), row.name, row.destination,
                              SizeText(row.size)};
    switch (bytes.place) {
    case RowBytes::Place::Container: {
        const ZipEntry& entry = package.container->Entries()[bytes.entry];
        line.push_back(entry.isSolid ? "-" : SizeText(entry.packedSize));
        line.push_back(entry.hasCrc ? CrcText(entry.crc) : "-");
        line.push_back(entry.name);
        break;
    }
    case RowBytes::Place::None:
        line.insert(line.end(), {"-", "-", "-"});
        break;
    case RowBytes::Place::LooseFile:
        line.insert(line.end(), {"-", "-", bytes.path});
        break;
    case RowBytes::Place::Missing:
        line.insert(line.end(), {"-", "-", "(saknas) " + bytes.path});
        break;
    }
    return line;
}

bool HasManifest(const Package& package)
{
    return package.manifest.state != PackageManifest::State::Missing;
}

const char* KindOf(const PackageSource& source)
{
    return source.isProgram ? "program" : "folder";
}

Json MediumJson(const Package& package)
{
    const std::string_view word = WordOfMedium(Medium(package.setup.project.Media.TargetMedia));
    return word.empty() ? Json() : Json(word);
}

Json VerifiedJson(const PackageSource& source, const std::vector<Text>& faults)
{
    const Package& package = source.package;
    Json object = {{"folder", source.path},
                   {"kind", KindOf(source)},
                   {"isWhole", faults.empty()},
                   {"hasManifest", HasManifest(package)},
                   {"medium", MediumJson(package)},
                   {"rows", package.rows.size()},
                   {"entries", package.container ? package.container->Entries().size() : 0U},
                   {"faults", faults}};
    if (source.isProgram)
        object["signature"] = SignatureJson(source.signature);
    return object;
}

} // namespace

Exit ListPackage(const CallContext& context)
{
    const PackageSource source = OpenPackageSource(context, context.PathOperand(0));
    const Package& package = source.package;
    for (const Text& fault : package.faults)
        context.err << fault << "\n";
    const Exit exit = package.faults.empty() ? Exit::Done : Exit::Unreadable;

    if (context.WantsJson()) {
        Json rows = Json::array();
        for (std::size_t i = 0; i < package.rows.size(); ++i)
            rows.push_back(RowJson(package, i));
        Json object = {{"folder", source.path},
                       {"kind", KindOf(source)},
                       {"rows", std::move(rows)},
                       {"faults", package.faults}};
        if (source.isProgram)
            object["signature"] = SignatureJson(source.signature);
        return context.PrintJson(std::move(object), exit);
    }
    Table table = {{"Rad", "Namn", "Destination", "Storlek", "Packad", "CRC", "Post"}};
    for (std::size_t i = 0; i < package.rows.size(); ++i)
        table.push_back(RowLine(package, i));
    PrintTable(context.out, table);
    if (source.isProgram)
        context.out << SignatureLine(source.signature) << "\n";
    return exit;
}

Exit VerifyPackageFolder(const CallContext& context)
{
    PackageSource source = OpenPackageSource(context, context.PathOperand(0));
    Package& package = source.package;
    std::vector<Text> faults = VerifyPackage(context.host.files, package);
    if (const Text fault = SignatureFault(source.signature); !fault.empty())
        faults.push_back(fault);
    const Exit exit = faults.empty() ? Exit::Done : Exit::Stopped;
    if (context.WantsJson())
        return context.PrintJson(VerifiedJson(source, faults), exit);
    for (const Text& fault : faults)
        context.out << fault << "\n";
    if (faults.empty())
        context.out << "Installationen är hel: " << package.rows.size() << " rader.\n";
    if (!HasManifest(package))
        context.out << kManifestName
                    << " saknas: runtimefilerna är inte prövade, bara att de finns.\n";
    if (source.isProgram)
        context.out << SignatureLine(source.signature) << "\n";
    return exit;
}

} // namespace quillon::cli
