#include "formats/package_maker.h"

#include "archive/zip_encryption.h"
#include "archive/zip_records.h"
#include "helpers/ansi_text.h"

#include <zlib.h>

namespace quillon::test {

using namespace zip;

namespace {

const Text kHeader = "[Origin]\r\nInfo = This file is created by Tavrell Quillon 2004\r\n\r\n"
                     "[ID]\r\nApp = Quillon\r\nVer = 6.5.6\r\n";

void AppendText(Bytes& bytes, std::string_view text)
{
    for (const char byte : text)
        bytes.push_back(static_cast<std::byte>(byte));
}

Bytes PackedContent(const PackedEntry& entry)
{
    Bytes content;
    AppendText(content, entry.content);
    if (entry.password.empty())
        return content;
    const Salt salt{std::byte{7}};
    EntryCipher cipher(entry.password, salt);
    cipher.Encrypt(content);
    Bytes packed(salt.begin(), salt.end());
    const auto append = [&](const auto& bytes) {
        packed.insert(packed.end(), bytes.begin(), bytes.end());
    };
    append(cipher.PasswordVerifier());
    append(content);
    append(cipher.Finish());
    return packed;
}

std::uint32_t CrcOf(const PackedEntry& entry)
{
    if (!entry.password.empty())
        return 0;
    const auto crc = crc32(0, reinterpret_cast<const Bytef*>(entry.content.data()),
                           static_cast<uInt>(entry.content.size()));
    return static_cast<std::uint32_t>(crc) ^ (entry.hasWrongCrc ? 1U : 0U);
}

template <class Header>
Header MakeHeader(const PackedEntry& entry, const Bytes& packed, const Bytes& extra)
{
    Header header;
    const bool encrypts = !entry.password.empty();
    header.versionNeeded = encrypts ? VersionNeeded::kAes : VersionNeeded::kStored;
    header.flags = static_cast<std::uint16_t>(Flag::kUtf8 | (encrypts ? Flag::kEncrypted : 0));
    header.method = encrypts ? Method::kAes : Method::kStored;
    header.date = DosDate({2004, 2, 29});
    header.crc = CrcOf(entry);
    header.packedSize = static_cast<std::uint32_t>(packed.size());
    header.size = static_cast<std::uint32_t>(entry.content.size());
    header.nameLength = static_cast<std::uint16_t>(entry.name.size());
    header.extraLength = static_cast<std::uint16_t>(extra.size());
    return header;
}

} // namespace

std::string MakeArchive(const std::vector<PackedEntry>& entries)
{
    Bytes archive;
    Bytes directory;
    for (const PackedEntry& entry : entries) {
        const Bytes packed = PackedContent(entry);
        Bytes extra;
        if (!entry.password.empty())
            AppendExtra(extra, AesExtra{.method = Method::kStored});

        auto central = MakeHeader<CentralHeader>(entry, packed, extra);
        central.commentLength = static_cast<std::uint16_t>(entry.comment.size());
        central.headerPosition = static_cast<std::uint32_t>(archive.size());
        AppendRecord(directory, central);
        AppendText(directory, entry.name);
        directory.insert(directory.end(), extra.begin(), extra.end());
        AppendText(directory, entry.comment);

        AppendRecord(archive, MakeHeader<LocalHeader>(entry, packed, extra));
        AppendText(archive, entry.name);
        archive.insert(archive.end(), extra.begin(), extra.end());
        archive.insert(archive.end(), packed.begin(), packed.end());
    }
    EndRecord end;
    end.entriesOnDisk = end.entries = static_cast<std::uint16_t>(entries.size());
    end.directorySize = static_cast<std::uint32_t>(directory.size());
    end.directoryPosition = static_cast<std::uint32_t>(archive.size());
    archive.insert(archive.end(), directory.begin(), directory.end());
    AppendRecord(archive, end);
    return std::string(reinterpret_cast<const char*>(archive.data()), archive.size());
}

std::string MakeSetupInformation(const SetupLines& lines)
{
    return AnsiText::ToBytes(
        kHeader + "FileType = Options\r\n\r\n" + "[Media]\r\nTargetMedia = " +
        std::to_string(lines.targetMedia) + "\r\n" + lines.floppies + "\r\n[Compression]\r\n" +
        "CompressFiles = 1\r\nKeepCompressedFilesOneAndOne = " + lines.keepOneAndOne +
        "\r\nPlaceCompressedFilesInFolderSetupFiles = " + lines.inSetupFiles +
        "\r\nCreateFolderStructureInFolderSetupFiles = " + lines.withFolders + "\r\n\r\n" +
        lines.more + "[FileListInfo]\r\nFiles = " + std::to_string(lines.files) +
        "\r\nTotalSize = 1\r\n\r\n-(EOF)-\r\n\r\n");
}

std::string MakeInstallFileList(const std::vector<InstallRow>& rows)
{
    Text text = kHeader + "FileType = FileList\r\n\r\n[FileList]\r\n";
    for (const InstallRow& row : rows)
        text += InstallRowLine(row) + "\r\n";
    text += rows.empty() ? "" : "....\r\n\r\n";
    return AnsiText::ToBytes(text + "-(EOF)-\r\n\r\n");
}

} // namespace quillon::test
